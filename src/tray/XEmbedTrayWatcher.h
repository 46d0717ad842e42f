#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <cstdint>

struct xcb_connection_t;

// Whether an XEmbed tray manager (trayer, stalonetray, older panels) owns the system-tray
// selection of the X screen, followed through the X events that announce a new manager or the
// end of the old one. Never present outside X11.
class XEmbedTrayWatcher : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit XEmbedTrayWatcher(QObject *parent = nullptr);
    ~XEmbedTrayWatcher() override;

    void start();
    bool present() const { return m_owner != 0; }

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

Q_SIGNALS:
    void presentChanged(bool present);

private:
    void recheck();

    xcb_connection_t *m_connection = nullptr;
    std::uint32_t m_selection = 0;
    std::uint32_t m_manager = 0;
    std::uint32_t m_owner = 0;
};
