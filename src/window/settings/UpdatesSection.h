#pragma once

#include "SettingsCard.h"

class QLabel;
class QPushButton;
class SettingsRow;

// This client's version and build, and "Check for updates" with its outcome.
class UpdatesSection : public SettingsCard
{
    Q_OBJECT

public:
    explicit UpdatesSection(QWidget *parent = nullptr);

    void refresh(const AppState &state, bool available) override;
    // The outcome of the last check as the shell words it; empty hides.
    void setCheckNote(const QString &text);
    // "0.2.0+7" reads "0.2.0 (build 7)".
    static QString versionText(const QString &version);

Q_SIGNALS:
    void checkUpdateRequested();

private:
    QLabel *m_version;
    QPushButton *m_check;
    QLabel *m_checkNote;
};
