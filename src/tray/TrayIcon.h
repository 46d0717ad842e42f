#pragma once

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QSystemTrayIcon>

class QMenu;
class StatusNotifierHostWatcher;
class XEmbedTrayWatcher;

// The tray's icon, made on the platform only once a tray host is there to show it. Qt chooses
// between StatusNotifierItem and XEmbed once per process, when its first icon is made, so an
// icon made while no host runs would stay invisible after one starts. Until then this keeps the
// icon, tool tip and menu and hands them over. Once made, Qt itself brings the icon back to a
// host that restarts.
class TrayIcon : public QObject
{
    Q_OBJECT

public:
    // How long the first look at the session bus may block start-up at most.
    static constexpr int kFirstLookTimeoutMs = 250;
    // Settled: the first answers are waited for, so hostPresent() is true to the desktop at
    // once. Background: they come as signals.
    enum class HostLook { Background, Settled };

    explicit TrayIcon(QObject *parent = nullptr);
    ~TrayIcon() override;

    void setIcon(const QIcon &icon);
    QIcon icon() const { return m_icon; }
    void setToolTip(const QString &toolTip);
    QString toolTip() const { return m_toolTip; }
    void setContextMenu(QMenu *menu);
    // Shown now when a host is there, else as soon as one comes.
    void show();
    // Shown by a host, so that a balloon has somewhere to appear.
    bool isVisible() const;
    void showMessage(const QString &title, const QString &message,
                     QSystemTrayIcon::MessageIcon kind, int durationMs);

    // Starts following the tray hosts; the first call decides how.
    void watchHosts(HostLook look);
    bool hostPresent() const;

Q_SIGNALS:
    void activated(QSystemTrayIcon::ActivationReason reason);
    void hostPresentChanged(bool present);

private:
    void handleHostChange();

    StatusNotifierHostWatcher *m_statusNotifierHosts;
    XEmbedTrayWatcher *m_xembedTray;
    QSystemTrayIcon *m_platformIcon = nullptr;
    QIcon m_icon;
    QString m_toolTip;
    QPointer<QMenu> m_menu;
    bool m_shown = false;
    bool m_hostPresent = false;
    bool m_watching = false;
};
