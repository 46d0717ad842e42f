#pragma once

#include <QFrame>

class AppState;
class QLabel;
class QVBoxLayout;
class SettingsRow;

// A titled card of the Settings page holding rows. Sections derive from it; the page tells each
// whether the daemon's values can be trusted and which note to show under the title.
class SettingsCard : public QFrame
{
    Q_OBJECT

public:
    explicit SettingsCard(const QString &title, QWidget *parent = nullptr);

    // available is false while the daemon is unknown or unreachable: values read "Unknown" and
    // daemon controls are disabled.
    virtual void refresh(const AppState &state, bool available) = 0;

    // A line under the title: a failed load ("error") or a plain remark ("muted"); empty hides.
    void setNote(const QString &text, const QString &role = QStringLiteral("error"));
    QString note() const;
    QString title() const;

protected:
    SettingsRow *addRow(const QString &label, const QString &hint, QWidget *control);
    static void setRole(QWidget *widget, const QString &role);
    static QString unknownText();

private:
    QVBoxLayout *m_rows;
    QLabel *m_title;
    QLabel *m_note;
    SettingsRow *m_lastRow = nullptr;
};
