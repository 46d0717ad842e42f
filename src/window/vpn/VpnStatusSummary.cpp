#include "VpnStatusSummary.h"

#include "AccountSession.h"
#include "BidiText.h"
#include "Countries.h"
#include "KillSwitchState.h"
#include "RoutingMode.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

// Shown by the VPN page, so translated in its context.
class VpnPageText
{
    Q_DECLARE_TR_FUNCTIONS(VpnPage)
};

QString word(const QString &value)
{
    return value.trimmed().toLower();
}

// The id out of the status record's "[id] [region] name" node text.
QString referenceId(const QString &reference)
{
    static const QRegularExpression idPattern(QStringLiteral("^\\[([^\\]]+)\\]"));
    const QRegularExpressionMatch match = idPattern.match(reference.trimmed());
    return match.hasMatch() ? match.captured(1).trimmed() : QString();
}

// The catalogue's entry for the node a status record names, if the catalogue holds it.
NodeEntry findNode(const NodesInfo &nodes, const NodeEntry &hint, const QString &reference)
{
    const QString id = hint.valid && !hint.id.isEmpty() ? hint.id : referenceId(reference);
    if (id.isEmpty())
        return {};
    for (const NodeEntry &node : nodes.nodes) {
        if (node.id == id)
            return node;
    }
    return hint.valid && hint.id == id ? hint : NodeEntry{};
}

QString placeText(const NodeEntry &node, const QString &fallback)
{
    if (!node.valid && node.id.isEmpty()) {
        // Only the status record's text: drop its bracketed id and region.
        QString plain = fallback;
        plain.remove(QRegularExpression(QStringLiteral("\\[[^\\]]*\\]\\s*")));
        return plain.trimmed();
    }
    const QString country = node.region.trimmed().isEmpty() ? QString() : countryName(node.region);
    const QString name = node.name.trimmed().isEmpty() ? node.id : node.name.trimmed();
    if (country.isEmpty() || country == name)
        return name;
    return VpnPageText::tr("%1 \u00b7 %2").arg(country, isolated(name));
}

} // namespace

bool VpnStatusSummary::isSignedIn(const QString &authState)
{
    return AccountSession::isSignedIn(authState);
}

QString VpnStatusSummary::elapsedText(const QDateTime &since, const QDateTime &now)
{
    const qint64 seconds = qMax<qint64>(0, since.secsTo(now));
    const qint64 hours = seconds / 3600;
    const QString minutesSeconds =
        QStringLiteral("%1:%2")
            .arg((seconds / 60) % 60, hours > 0 ? 2 : 1, 10, QLatin1Char('0'))
            .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return hours > 0 ? QStringLiteral("%1:%2").arg(hours).arg(minutesSeconds) : minutesSeconds;
}

VpnStatusSummary VpnStatusSummary::build(const RuntimeInfo &runtime, const NodesInfo &nodes,
                                         const KillSwitchInfo &killSwitch,
                                         const QString &unavailableReason,
                                         const PendingConnect &pending)
{
    VpnStatusSummary summary;

    if (!unavailableReason.trimmed().isEmpty() || !runtime.valid) {
        summary.phase = Phase::Unavailable;
        summary.dotState = QStringLiteral("unavailable");
        summary.title = VpnPageText::tr("Service unavailable");
        summary.detail = unavailableReason.trimmed().isEmpty()
                             ? VpnPageText::tr("Waiting for the Tovra service to answer.")
                             : unavailableReason.trimmed();
        return summary;
    }

    summary.modeLabel = ::modeLabel(runtime.mode);
    summary.killSwitchWord = killSwitchStateText(killSwitch, "VpnPage");
    if (!isSignedIn(runtime.authState)) {
        summary.phase = Phase::SignedOut;
        summary.dotState = QStringLiteral("disconnected");
        summary.title = VpnPageText::tr("Signed out");
        summary.detail = VpnPageText::tr("Sign in to your Tovra account to connect.");
        return summary;
    }

    // A connect the shell started wins over an older state: it may move a live tunnel.
    const QString tunnel = word(runtime.tunnelState);
    if (pending.active || tunnel == QLatin1String("connecting"))
        summary.phase = Phase::Connecting;
    else if (tunnel == QLatin1String("connected"))
        summary.phase = Phase::Connected;
    else if (tunnel == QLatin1String("disconnecting"))
        summary.phase = Phase::Disconnecting;
    else
        summary.phase = Phase::Disconnected;

    const bool live = summary.phase != Phase::Disconnected;
    const NodeEntry node = live ? findNode(nodes, nodes.connected, runtime.connectedNode)
                                : findNode(nodes, nodes.selected, runtime.selectedNode);
    const QString reference = live ? runtime.connectedNode : runtime.selectedNode;
    summary.locationId = node.id.isEmpty() ? referenceId(reference) : node.id;
    summary.locationText = placeText(node, reference);
    summary.flagCode = node.region.trimmed().toLower();
    if (!summary.locationText.isEmpty())
        summary.locationCaption =
            live ? VpnPageText::tr("Location") : VpnPageText::tr("Last location");

    switch (summary.phase) {
    case Phase::Connected:
        summary.dotState = QStringLiteral("connected");
        summary.title = VpnPageText::tr("Connected");
        summary.detail = VpnPageText::tr("Your traffic goes through the Tovra tunnel.");
        summary.connectedSince = QDateTime::fromString(runtime.connectedSince, Qt::ISODate);
        break;
    case Phase::Connecting: {
        summary.dotState = QStringLiteral("disconnected");
        summary.title = VpnPageText::tr("Connecting\u2026");
        const QString target = pending.active && !pending.label.trimmed().isEmpty()
                                   ? pending.label.trimmed()
                                   : summary.locationText;
        summary.connectingTo = target;
        summary.detail = target.isEmpty()
                             ? VpnPageText::tr("Setting up the tunnel.")
                             : VpnPageText::tr("Connecting to %1").arg(isolated(target));
        break;
    }
    case Phase::Disconnecting:
        summary.dotState = QStringLiteral("disconnected");
        summary.title = VpnPageText::tr("Disconnecting\u2026");
        summary.detail = VpnPageText::tr("Closing the tunnel.");
        break;
    default:
        summary.dotState = QStringLiteral("disconnected");
        summary.title = VpnPageText::tr("Disconnected");
        summary.detail = word(killSwitch.guard) == QLatin1String("active")
                             ? VpnPageText::tr("Kill Switch blocks traffic until you connect.")
                             : VpnPageText::tr("Your traffic is not protected.");
        break;
    }
    return summary;
}
