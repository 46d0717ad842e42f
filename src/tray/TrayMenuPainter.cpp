#include "TrayMenuPainter.h"

#include "AppState.h"
#include "TrayIcon.h"
#include "TrayMenuText.h"
#include "TrayModeActions.h"
#include "TrayNodeLoader.h"
#include "TrayNodeMenuModel.h"
#include "TrayOperations.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

TrayMenuPainter::TrayMenuPainter(AppState *state, const TrayMenu &menu, TrayIcon *icon,
                                 TrayModeActions *modeActions, TrayNodeMenuModel *nodeModel,
                                 TrayNodeLoader *nodeLoader, const TrayOperations *operations)
    : m_state(state)
    , m_menu(menu)
    , m_icon(icon)
    , m_modeActions(modeActions)
    , m_nodeModel(nodeModel)
    , m_nodeLoader(nodeLoader)
    , m_operations(operations)
{}

const QIcon &TrayMenuPainter::stateIcon(bool connected)
{
    // Decoded on first use, after the window's first paint when the window shows at start.
    QIcon &icon = connected ? m_iconOn : m_iconOff;
    if (icon.isNull())
        icon = QIcon(connected ? QStringLiteral(":/icons/tray-on.png")
                               : QStringLiteral(":/icons/tray-off.png"));
    return icon;
}

bool TrayMenuPainter::isBusy(const Situation &situation) const
{
    return !situation.available || m_operations->inFlight();
}

const KillSwitchInfo &TrayMenuPainter::killSwitchRecord() const
{
    return m_state->killSwitch().valid ? m_state->killSwitch() : m_state->runtime().killSwitch;
}

void TrayMenuPainter::drawIdleIcon()
{
    m_icon->setToolTip(QStringLiteral("Tovra"));
    m_icon->setIcon(stateIcon(false));
}

void TrayMenuPainter::draw(const Situation &situation)
{
    const RuntimeInfo &runtime = m_state->runtime();
    updateStatusLine();
    m_modeActions->apply(runtime.mode);
    updateKillSwitchEntry();
    m_menu.account->setText(
        TrayStatusFormatter::accountLine(runtime, m_state->user(), situation.userLookup));
    const bool connected = TrayStatusFormatter::isConnected(runtime);
    m_icon->setIcon(stateIcon(connected));
    m_icon->setToolTip(QStringLiteral("Tovra"));
    updateEnabledStates(situation);
}

void TrayMenuPainter::drawUnavailable(const QString &errorMessage, const Situation &situation)
{
    m_menu.statusLine->setText(TrayMenuText::tr("Tovra: daemon unavailable"));
    m_menu.daemonLine->setText(
        errorMessage.trimmed().isEmpty() ? TrayMenuText::tr("daemon unavailable") : errorMessage);
    m_menu.account->setText(TrayMenuText::tr("Account: unavailable"));
    m_icon->setIcon(stateIcon(false));
    m_icon->setToolTip(TrayMenuText::tr("Tovra - daemon unavailable"));
    updateEnabledStates(situation);
}

void TrayMenuPainter::updateStatusLine()
{
    const QString operationText = m_operations->statusText();
    if (m_operations->inFlight() && !operationText.isEmpty()) {
        m_menu.statusLine->setText(operationText);
        return;
    }
    const RuntimeInfo &runtime = m_state->runtime();
    if (!runtime.valid)
        return;
    QString label = m_operations->connectTargetLabel();
    const NodesInfo &nodes = m_state->nodes();
    if (label.isEmpty() && nodes.selected.valid)
        label = m_nodeModel->labelFor(nodes.selected.id);
    m_menu.statusLine->setText(TrayStatusFormatter::statusLine(runtime, label));
}

void TrayMenuPainter::updateKillSwitchEntry()
{
    const KillSwitchInfo &record = killSwitchRecord();
    m_menu.killSwitch->setText(TrayStatusFormatter::killSwitchText(record));
    m_menu.killSwitch->setChecked(record.valid && record.enabled);
}

void TrayMenuPainter::updateRefreshNodesEntry(const Situation &situation)
{
    m_nodeLoader->updateRefreshEntry(situation.available && !situation.unreachable &&
                                     m_state->runtime().valid && !isBusy(situation));
}

void TrayMenuPainter::updateConnectEntry(const Situation &situation)
{
    if (m_operations->connectInFlight()) {
        // An attempt that cannot be cancelled offers nothing to choose.
        const bool cancellable = m_operations->connectCancellable();
        m_menu.connect->setText(cancellable ? QCoreApplication::translate("SettingsPage", "Cancel")
                                            : TrayMenuText::tr("Connect"));
        m_menu.connect->setEnabled(cancellable);
        return;
    }
    const RuntimeInfo &runtime = m_state->runtime();
    m_menu.connect->setText(TrayMenuText::tr("Connect"));
    m_menu.connect->setEnabled(situation.available && !situation.unreachable && runtime.valid &&
                               !isBusy(situation) && !TrayStatusFormatter::isConnected(runtime) &&
                               !TrayStatusFormatter::isConnecting(runtime));
}

void TrayMenuPainter::updateEnabledStates(const Situation &situation)
{
    const RuntimeInfo &runtime = m_state->runtime();
    const bool reachable = situation.available && !situation.unreachable;
    const bool usable = reachable && runtime.valid && !isBusy(situation);
    const bool tunnelUp =
        TrayStatusFormatter::isConnected(runtime) || TrayStatusFormatter::isConnecting(runtime);

    updateConnectEntry(situation);
    m_menu.disconnect->setEnabled(usable && tunnelUp);
    if (m_menu.nodeMenu) {
        m_menu.nodeMenu->menuAction()->setEnabled(usable);
    } else {
        for (QAction *entry : std::as_const(m_menu.nodeEntries))
            entry->setEnabled(usable && !entry->property(TrayNodeLoader::kLockedProperty).toBool());
    }
    m_modeActions->setEnabled(usable);

    const KillSwitchInfo &record = killSwitchRecord();
    m_menu.killSwitch->setEnabled(reachable && !isBusy(situation) && record.valid &&
                                  record.mode != u"lockdown");
    m_menu.account->setEnabled(usable);
    m_menu.logout->setEnabled(usable && TrayStatusFormatter::isSignedIn(runtime));
    m_menu.refreshStatus->setEnabled(situation.available);
    m_menu.openLogs->setEnabled(situation.available);
    updateRefreshNodesEntry(situation);
}
