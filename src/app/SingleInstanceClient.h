#pragma once

#include "DesktopAnswer.h"
#include "DesktopRequest.h"

#include <QObject>
#include <QTimer>

class QLocalSocket;

// The running client's side of one later launch: reads its request line without blocking (at
// most DesktopRequest::kMaxLineBytes, for at most kReadTimeoutMs) and answers it once. What
// arrives by the time the peer hangs up, the line grows too long or the time runs out counts as
// the request, so an older launch that writes and leaves is still understood.
class SingleInstanceClient : public QObject
{
    Q_OBJECT

public:
    static constexpr int kReadTimeoutMs = 2000;
    // Nobody keeps a launch waiting longer than this for its answer.
    static constexpr int kAnswerDeadlineMs = 90000;

    // Takes the socket over.
    explicit SingleInstanceClient(QLocalSocket *socket, QObject *parent = nullptr);

    // Writes the answer line and hangs up; later calls do nothing. The object then goes.
    void answer(const DesktopAnswer &answer);

Q_SIGNALS:
    void requestRead(const DesktopRequest &request);

private:
    void readAvailable();
    void finishReading();

    QLocalSocket *m_socket;
    QByteArray m_line;
    QTimer m_deadline;
    bool m_read = false;
    bool m_answered = false;
};
