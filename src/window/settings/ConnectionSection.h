#pragma once

#include "SettingsCard.h"

class QLabel;
class QPushButton;
class SettingsChoice;
class SettingsField;

// How the daemon connects: auto connect at start, and the service's API address with the
// daemon's word on whether it validated it.
class ConnectionSection : public SettingsCard
{
    Q_OBJECT

public:
    explicit ConnectionSection(QWidget *parent = nullptr);

    void refresh(const AppState &state, bool available) override;
    void settle();

Q_SIGNALS:
    void setAutoConnectRequested(QString value);
    void setAPIURLRequested(QString apiURL);
    void resetAPIURLRequested();

private:
    void applyAPIURL();

    SettingsChoice *m_autoConnect;
    SettingsField *m_apiURL;
    QPushButton *m_saveAPIURL;
    QPushButton *m_resetAPIURL;
    QLabel *m_validation;
};
