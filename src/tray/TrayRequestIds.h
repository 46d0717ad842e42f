#pragma once

#include <QtGlobal>

#include <array>

// The tray's own request numbers and the latest one of each kind; an answer whose number is not
// the latest of its kind is stale and dropped.
class TrayRequestIds
{
public:
    enum class Kind {
        Status,
        User,
        Nodes,
        NodeGroups,
        ConfigPaths,
        KillSwitch,
        Connect,
        Disconnect,
        Logout,
        Mode,
        Count
    };

    // Takes the next number for a request of this kind and remembers it as the latest.
    quint64 take(Kind kind);
    // Remembers a number handed out by someone else (the shell's connect, disconnect, logout).
    void adopt(Kind kind, quint64 requestId);
    bool isLatest(Kind kind, quint64 requestId) const;
    quint64 latest(Kind kind) const;
    quint64 nextId() const { return m_nextId; }

private:
    // Below the shell's range, which starts at 2^32: both listen to the same worker.
    quint64 m_nextId = 1;
    std::array<quint64, std::size_t(Kind::Count)> m_latest{};
};
