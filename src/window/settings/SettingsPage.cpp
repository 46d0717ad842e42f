#include "SettingsPage.h"

#include "AppSection.h"
#include "AppState.h"
#include "ConnectionSection.h"
#include "DiagnosticsSection.h"
#include "KillSwitchSection.h"
#include "LanguagePickerDialog.h"
#include "NetworkSection.h"
#include "SettingsNotes.h"
#include "ThemeEngine.h"
#include "ThemedScrollBar.h"
#include "UpdatesSection.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

SettingsPage::SettingsPage(GuiPreferences *preferences, QWidget *parent)
    : WindowPage(QStringLiteral("TovraSettingsPage"), tr("Preferences"),
                 tr("Changes take effect once the Tovra service confirms them."), parent)
    , m_banner(new QLabel(this))
    , m_busyLabel(new QLabel(tr("Applying settings..."), this))
    , m_scroll(new QScrollArea(this))
{
    m_banner->setObjectName(QStringLiteral("TovraSettingsBanner"));
    m_banner->setWordWrap(true);
    m_banner->setProperty("tovraRole", QStringLiteral("error"));
    m_banner->hide();
    addContent(m_banner);
    m_busyLabel->setObjectName(QStringLiteral("TovraSettingsHint"));
    m_busyLabel->setVisible(false);
    addContent(m_busyLabel);

    m_scroll->setObjectName(QStringLiteral("TovraSettingsScrollArea"));
    m_scroll->setAccessibleName(tr("Settings"));
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    // Not a stop of its own: Tab goes to the controls, and the area scrolls to show them.
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical, m_scroll));
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    // Room on the trailing side so the scroll bar never covers a control.
    layout->setContentsMargins(0, 0, 14, 8);
    layout->setSpacing(16);
    // In place before the cards exist: placing a filled column restyles and measures it all.
    m_scroll->setWidget(column);
    m_killSwitch = new KillSwitchSection(column);
    m_network = new NetworkSection(column);
    m_connection = new ConnectionSection(column);
    m_app = new AppSection(preferences, column);
    m_updates = new UpdatesSection(column);
    m_diagnostics = new DiagnosticsSection(column);
    m_cards = {m_killSwitch, m_network, m_connection, m_app, m_updates, m_diagnostics};
    for (SettingsCard *card : std::as_const(m_cards))
        layout->addWidget(card);
    layout->addStretch(1);
    addContent(m_scroll);
    // The scroll area takes the page's height instead of the closing stretch below it.
    auto *body = static_cast<QVBoxLayout *>(this->layout());
    body->setStretchFactor(m_scroll, 1);
    body->setStretch(body->count() - 1, 0);

    connectSections();
    redraw();
}

void SettingsPage::connectSections()
{
    using P = SettingsPage;
    connect(m_killSwitch, &KillSwitchSection::setKillSwitchEnabledRequested, this,
            &P::setKillSwitchEnabledRequested);
    connect(m_killSwitch, &KillSwitchSection::setKillSwitchModeRequested, this,
            &P::setKillSwitchModeRequested);
    connect(m_killSwitch, &KillSwitchSection::switchToAutoAndEnableKillSwitchRequested, this,
            &P::switchToAutoAndEnableKillSwitchRequested);
    connect(m_killSwitch, &KillSwitchSection::chooseModeForKillSwitchRequested, this,
            &P::chooseModeForKillSwitchRequested);

    connect(m_network, &NetworkSection::setSystemProxyRequested, this, &P::setSystemProxyRequested);
    connect(m_network, &NetworkSection::setLocalNetworkRequested, this,
            &P::setLocalNetworkRequested);
    connect(m_network, &NetworkSection::setProxyListenersRequested, this,
            &P::setProxyListenersRequested);
    connect(m_network, &NetworkSection::setSplitDNSLocalRequested, this,
            &P::setSplitDNSLocalRequested);
    connect(m_network, &NetworkSection::setSplitDNSPolicyRequested, this,
            &P::setSplitDNSPolicyRequested);
    connect(m_network, &NetworkSection::clearSplitDNSLocalRequested, this,
            &P::clearSplitDNSLocalRequested);
    connect(m_network, &NetworkSection::resetSplitDNSRequested, this, &P::resetSplitDNSRequested);

    connect(m_connection, &ConnectionSection::setAutoConnectRequested, this,
            &P::setAutoConnectRequested);
    connect(m_connection, &ConnectionSection::setAPIURLRequested, this, &P::setAPIURLRequested);
    connect(m_connection, &ConnectionSection::resetAPIURLRequested, this, &P::resetAPIURLRequested);

    connect(m_app, &AppSection::setLanguageRequested, this, &P::setLanguageRequested);
    connect(m_app, &AppSection::appearanceChangeRequested, this, &P::appearanceChangeRequested);
    connect(m_app, &AppSection::languagePickerCreated, this, [this](LanguagePickerDialog *dialog) {
        ThemeEngine::applyToWindow(dialog, themeColors());
    });

    connect(m_updates, &UpdatesSection::checkUpdateRequested, this, &P::checkUpdateRequested);
    connect(m_diagnostics, &DiagnosticsSection::repairDiagnosticsRequested, this,
            &P::repairDiagnosticsRequested);
    connect(m_diagnostics, &DiagnosticsSection::openLogsRequested, this, &P::openLogsRequested);
}

WindowPage::Records SettingsPage::reads() const
{
    return Record::Runtime | Record::KillSwitch | Record::ConfigPaths | Record::Version |
           Record::APIURLConfig | Record::LanguageConfig | Record::SplitDNS;
}

void SettingsPage::refresh(const AppState &state)
{
    m_state = &state;
    redraw();
}

bool SettingsPage::available() const
{
    return m_state && m_state->runtime().valid && m_notes.value(SettingsNotes::Status).isEmpty();
}

void SettingsPage::redraw()
{
    if (m_state) {
        const bool up = available();
        for (SettingsCard *card : std::as_const(m_cards))
            card->refresh(*m_state, up);
    }
    showNotes();
}

void SettingsPage::showNotes()
{
    const QString status = m_notes.value(SettingsNotes::Status);
    if (!status.isEmpty()) {
        QString text = status.trimmed();
        if (!text.endsWith(QLatin1Char('.')))
            text += QLatin1Char('.');
        m_banner->setText(text + QLatin1Char(' ') +
                          tr("Settings can be changed again once the Tovra service answers."));
    } else if (!m_state || !m_state->runtime().valid) {
        m_banner->setText(tr("Waiting for the Tovra service..."));
    } else {
        m_banner->clear();
    }
    m_banner->setVisible(!m_banner->text().isEmpty());

    // While the service is away every load fails alike; the banner says it once.
    const auto loadNote = [this, &status](const QString &key) {
        return status.isEmpty() ? m_notes.value(key) : QString();
    };
    QString killSwitch = loadNote(SettingsNotes::KillSwitch);
    m_killSwitch->setNote(killSwitch);
    m_killSwitch->setModeNote(m_notes.value(SettingsNotes::KillSwitchMode));
    m_network->setNote(loadNote(SettingsNotes::SplitDNS));
    m_network->setListenNote(m_notes.value(SettingsNotes::ProxyListen));
    m_connection->setNote(loadNote(SettingsNotes::APIURL));
    m_app->setNote(loadNote(SettingsNotes::Language));
    m_updates->setCheckNote(m_notes.value(SettingsNotes::UpdateCheck));
    m_diagnostics->setNote(loadNote(SettingsNotes::ConfigPaths));
}

void SettingsPage::setNote(const QString &key, const QString &text)
{
    const bool wasAvailable = available();
    if (text.isEmpty())
        m_notes.remove(key);
    else
        m_notes.insert(key, text);
    if (available() != wasAvailable)
        redraw();
    else
        showNotes();
}

void SettingsPage::setRepairResult(const RepairResultInfo &result)
{
    m_diagnostics->setRepairResult(result);
}

void SettingsPage::settle()
{
    m_killSwitch->settle();
    m_network->settle();
    m_connection->settle();
}

void SettingsPage::applyTheme(const ThemeColors &colors)
{
    WindowPage::applyTheme(colors);
    m_app->showAppearance();
}

void SettingsPage::setBusy(bool busy)
{
    m_busy = busy;
    m_busyLabel->setVisible(busy);
}
