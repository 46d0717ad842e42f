#pragma once

#include <QComboBox>

// A drop-down of fixed choices (value and label) that shows the daemon's value. Picking another
// entry asks for it; the entry stays picked until the answer settles it, then the daemon's
// value shows again, so a refused choice snaps back.
class SettingsChoice : public QComboBox
{
    Q_OBJECT

public:
    explicit SettingsChoice(const QString &objectName, QWidget *parent = nullptr);

    void addChoice(const QString &value, const QString &label);
    // An empty or unlisted value shows "Unknown".
    void setDaemonValue(const QString &value);
    QString daemonValue() const { return m_daemonValue; }
    QString currentValue() const;
    bool isPending() const { return m_pending; }
    void settle();

Q_SIGNALS:
    void choiceRequested(QString value);

private:
    void showValue(const QString &value);

    QString m_daemonValue;
    bool m_pending = false;
};
