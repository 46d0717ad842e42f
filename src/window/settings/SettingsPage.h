#pragma once

#include "WindowPage.h"

#include "RepairResultInfo.h"

#include <QMap>
#include <QPointer>
#include <QStringList>
#include <QUrl>

class AppSection;
class AppState;
class ConnectionSection;
class DiagnosticsSection;
class GuiPreferences;
class KillSwitchSection;
class NetworkSection;
class QLabel;
class QScrollArea;
class SettingsCard;
class UpdatesSection;

// Page 3: every setting of the daemon and every preference of this client, one card per
// section in a scrolling column. Values come from the state store and change only when the
// daemon confirms; a failed load is told once, beside its section.
class SettingsPage : public WindowPage
{
    Q_OBJECT

public:
    explicit SettingsPage(GuiPreferences *preferences, QWidget *parent = nullptr);

    void refresh(const AppState &state) override;
    Records reads() const override;
    void applyTheme(const ThemeColors &colors) override;

    void setBusy(bool busy);
    bool isBusy() const { return m_busy; }
    // A line from the shell beside a section, by key (SettingsNotes.h); empty removes it.
    void setNote(const QString &key, const QString &text);
    QString note(const QString &key) const { return m_notes.value(key); }
    void setRepairResult(const RepairResultInfo &result);
    // An operation was answered: choices still waiting show the daemon's value again.
    void settle();

    KillSwitchSection *killSwitchSection() const { return m_killSwitch; }
    NetworkSection *networkSection() const { return m_network; }
    ConnectionSection *connectionSection() const { return m_connection; }
    AppSection *appSection() const { return m_app; }
    UpdatesSection *updatesSection() const { return m_updates; }
    DiagnosticsSection *diagnosticsSection() const { return m_diagnostics; }
    QScrollArea *scrollArea() const { return m_scroll; }

Q_SIGNALS:
    void openLogsRequested();
    void openExternalURLRequested(QUrl url);
    void setKillSwitchEnabledRequested(bool enabled);
    void setKillSwitchModeRequested(QString mode);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
    void setSystemProxyRequested(QString mode);
    void setLocalNetworkRequested(QString mode);
    void setAPIURLRequested(QString apiURL);
    void resetAPIURLRequested();
    void setAutoConnectRequested(QString value);
    void setLanguageRequested(QString source, QString language);
    void checkUpdateRequested();
    void setProxyListenersRequested(QString socksAddress, QString httpAddress);
    void setSplitDNSLocalRequested(QStringList servers);
    void setSplitDNSPolicyRequested(QString policy);
    void clearSplitDNSLocalRequested();
    void resetSplitDNSRequested();
    void repairDiagnosticsRequested();
    // The user picked "light", "dark" or "system"; the window stores and applies it.
    void appearanceChangeRequested(QString appearance);

private:
    void connectSections();
    void showNotes();
    void redraw();
    bool available() const;

    QLabel *m_banner;
    QLabel *m_busyLabel;
    QScrollArea *m_scroll;
    KillSwitchSection *m_killSwitch;
    NetworkSection *m_network;
    ConnectionSection *m_connection;
    AppSection *m_app;
    UpdatesSection *m_updates;
    DiagnosticsSection *m_diagnostics;
    QList<SettingsCard *> m_cards;
    QPointer<const AppState> m_state;
    QMap<QString, QString> m_notes;
    bool m_busy = false;
};
