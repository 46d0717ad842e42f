#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

// A text field that shows the daemon's value until the user edits it, with a message line
// under it for a validation error. Once the edit is sent, the next refresh shows the daemon's
// value again, confirmed or not, so a refused change snaps back.
class SettingsField : public QWidget
{
    Q_OBJECT

public:
    SettingsField(const QString &objectName, const QString &accessibleName,
                  const QString &placeholder, QWidget *parent = nullptr);

    QString text() const;
    // Shown unless the user is editing, or waiting for the answer to what was sent.
    void setDaemonValue(const QString &value);
    bool isEditing() const { return m_editing; }
    // The typed text has gone to the daemon; it stays until the answer settles it.
    void markSubmitted();
    // The change was answered: from now on the field shows the daemon's value.
    void settle();
    void showError(const QString &message);
    QString error() const;
    QLineEdit *lineEdit() const { return m_edit; }

Q_SIGNALS:
    // Return was pressed in the field.
    void submitted();

private:
    QLineEdit *m_edit;
    QLabel *m_error;
    QString m_daemonValue;
    bool m_editing = false;
    bool m_pending = false;
};
