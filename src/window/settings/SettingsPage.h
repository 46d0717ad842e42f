#pragma once

#include "WindowPage.h"

#include <QStringList>
#include <QUrl>

class QLabel;

// Page 3: kill switch, connection, DNS, proxy, language, appearance, updates and diagnostics.
class SettingsPage : public WindowPage
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget *parent = nullptr);

    void setBusy(bool busy);
    bool isBusy() const { return m_busy; }

Q_SIGNALS:
    void openLogsRequested();
    void openExternalURLRequested(QUrl url);
    void setKillSwitchEnabledRequested(bool enabled);
    void setKillSwitchModeRequested(QString mode);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
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
    QLabel *m_busyLabel;
    bool m_busy = false;
};
