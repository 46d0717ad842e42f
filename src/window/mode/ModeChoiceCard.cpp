#include "ModeChoiceCard.h"

#include "ModeInlineError.h"
#include "ModeOptionButton.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace {

struct OptionRow
{
    ModeChoice choice;
    const char *description;
};

// Laid out two to a row: one family per row.
const OptionRow kOptions[] = {
    {ModeChoice::Auto,
     QT_TRANSLATE_NOOP("ModeChoiceCard", "Tovra picks the protocol that works best here.")},
    {ModeChoice::WireGuard,
     QT_TRANSLATE_NOOP("ModeChoiceCard", "A fast, modern tunnel for all your traffic.")},
    {ModeChoice::TovraVpnGlobal,
     QT_TRANSLATE_NOOP("ModeChoiceCard", "All traffic goes through the TovraVPN tunnel.")},
    {ModeChoice::TovraVpnSplit,
     QT_TRANSLATE_NOOP("ModeChoiceCard",
                       "The tunnel by default; chosen regions and sites go direct.")},
    {ModeChoice::ProxyGlobal,
     QT_TRANSLATE_NOOP(
         "ModeChoiceCard",
         "No tunnel: apps that use the local proxy reach the internet through Tovra.")},
    {ModeChoice::ProxySplit,
     QT_TRANSLATE_NOOP("ModeChoiceCard",
                       "The local proxy, with chosen regions and sites going direct.")},
};

} // namespace

ModeChoiceCard::ModeChoiceCard(QWidget *parent)
    : QFrame(parent)
    , m_busy(new QLabel(tr("Applying\u2026"), this))
    , m_killSwitchHint(new QLabel(
          tr("Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on."),
          this))
    , m_unknown(new QLabel(this))
    , m_error(new ModeInlineError(this))
{
    setObjectName(QStringLiteral("TovraModeCard"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 16);
    layout->setSpacing(10);

    auto *header = new QHBoxLayout;
    auto *title = new QLabel(tr("Choose a mode"), this);
    title->setObjectName(QStringLiteral("TovraCardTitle"));
    m_busy->setObjectName(QStringLiteral("TovraModeBusy"));
    m_busy->setVisible(false);
    header->addWidget(title);
    header->addStretch(1);
    header->addWidget(m_busy);
    layout->addLayout(header);

    m_killSwitchHint->setObjectName(QStringLiteral("TovraModeKillSwitchHint"));
    m_killSwitchHint->setWordWrap(true);
    m_killSwitchHint->setVisible(false);
    layout->addWidget(m_killSwitchHint);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    int index = 0;
    for (const OptionRow &row : kOptions) {
        auto *option = new ModeOptionButton(
            modeLabel(modeForChoice(row.choice)),
            QCoreApplication::translate("ModeChoiceCard", row.description), this);
        const ModeChoice choice = row.choice;
        connect(option, &QPushButton::clicked, this,
                [this, choice] { Q_EMIT choiceRequested(choice); });
        m_options.insert(choice, option);
        grid->addWidget(option, index / 2, index % 2);
        ++index;
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);

    m_unknown->setProperty("tovraRole", QStringLiteral("muted"));
    m_unknown->setWordWrap(true);
    layout->addWidget(m_unknown);
    layout->addWidget(m_error);
}

bool ModeChoiceCard::choiceOf(const ModeInfo &mode, ModeChoice *choice)
{
    const QString &policy = mode.policy;
    const bool knownPolicy = policy.isEmpty() || policy == u"global" || policy == u"split" ||
                             policy == u"gfwlist" || isRegionPolicy(policy);
    if (!knownPolicy)
        return false;
    const QString &transport = mode.transport;
    if (transport == u"auto")
        *choice = ModeChoice::Auto;
    else if (transport == u"wireguard")
        *choice = ModeChoice::WireGuard;
    else if (transport == u"tovravpn")
        *choice = isTunnelSplit(mode) ? ModeChoice::TovraVpnSplit : ModeChoice::TovraVpnGlobal;
    else if (transport == u"proxy")
        *choice = isProxySplit(mode) ? ModeChoice::ProxySplit : ModeChoice::ProxyGlobal;
    else
        return false;
    return true;
}

bool ModeChoiceCard::isVpnChoice(ModeChoice choice)
{
    return choice != ModeChoice::ProxyGlobal && choice != ModeChoice::ProxySplit;
}

void ModeChoiceCard::refresh(const ModeInfo &mode)
{
    ModeChoice current = ModeChoice::Auto;
    const bool known = choiceOf(mode, &current);
    for (auto it = m_options.cbegin(); it != m_options.cend(); ++it)
        it.value()->setChecked(known && it.key() == current);

    if (known)
        m_unknown->clear();
    else if (mode.transport.isEmpty())
        m_unknown->setText(tr("The current mode shows once the Tovra service answers."));
    else
        // Words this version does not know are shown as the daemon sent them.
        m_unknown->setText(tr("Current mode: %1. This version of Tovra does not know it; "
                              "choose one of the modes above to replace it.")
                               .arg(QStringList{mode.transport, mode.policy}
                                        .filter(QRegularExpression(QStringLiteral("\\S")))
                                        .join(QLatin1Char(' '))));
    m_unknown->setVisible(!known);
}

void ModeChoiceCard::setVpnModesHighlighted(bool highlighted)
{
    m_highlighted = highlighted;
    m_killSwitchHint->setVisible(highlighted);
    for (auto it = m_options.cbegin(); it != m_options.cend(); ++it)
        it.value()->setHighlighted(highlighted && isVpnChoice(it.key()));
}

void ModeChoiceCard::setChoicesEnabled(bool enabled)
{
    for (ModeOptionButton *option : std::as_const(m_options))
        option->setEnabled(enabled);
}

void ModeChoiceCard::setBusy(bool busy)
{
    m_busy->setVisible(busy);
}
