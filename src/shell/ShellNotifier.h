#pragma once

#include <QObject>
#include <QString>

class TovraTrayApp;
class WindowController;

// Where the shell's messages go: the main window's notification area while the window is on
// screen, else the tray's balloon, so that a user working from the tray still hears of it.
class ShellNotifier : public QObject
{
    Q_OBJECT

public:
    static constexpr int kDefaultDurationMs = 5000;

    ShellNotifier(WindowController *window, TovraTrayApp *tray, QObject *parent = nullptr);

    void post(const QString &text, const QString &kind, int durationMs = kDefaultDurationMs);
    void info(const QString &text, int durationMs = kDefaultDurationMs)
    {
        post(text, QStringLiteral("info"), durationMs);
    }
    void success(const QString &text, int durationMs = kDefaultDurationMs)
    {
        post(text, QStringLiteral("success"), durationMs);
    }
    void warning(const QString &text, int durationMs = kDefaultDurationMs)
    {
        post(text, QStringLiteral("warning"), durationMs);
    }
    void error(const QString &text, int durationMs = kDefaultDurationMs)
    {
        post(text, QStringLiteral("error"), durationMs);
    }

    QString lastText() const { return m_lastText; }
    QString lastKind() const { return m_lastKind; }

Q_SIGNALS:
    void posted(const QString &text, const QString &kind);

private:
    WindowController *m_window;
    TovraTrayApp *m_tray;
    QString m_lastText;
    QString m_lastKind;
};
