#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

// A themed question with up to three answers: accept, alternate and cancel.
class ConfirmDialog : public QDialog
{
    Q_OBJECT

public:
    enum Result { Cancelled = 0, Accepted = 1, Alternate = 2 };

    // Takes its theme from the parent's window, or from the application when shown on its own.
    explicit ConfirmDialog(QWidget *parent = nullptr);

    void setTitle(const QString &title);
    void setMessage(const QString &message);
    // The description is the button's tool tip and accessible description.
    void setAcceptButton(const QString &text, const QString &description);
    void setAlternateButton(const QString &text, const QString &description);
    void setCancelButton(const QString &text, const QString &description);
    void setDestructive(bool destructive);

    QPushButton *acceptButton() const { return m_accept; }
    QPushButton *alternateButton() const { return m_alternate; }
    QPushButton *cancelButton() const { return m_cancel; }

private:
    static void configure(QPushButton *button, const QString &text, const QString &description);

    QLabel *m_title = nullptr;
    QLabel *m_message = nullptr;
    QPushButton *m_accept = nullptr;
    QPushButton *m_alternate = nullptr;
    QPushButton *m_cancel = nullptr;
};
