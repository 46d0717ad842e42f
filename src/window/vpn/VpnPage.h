#pragma once

#include "WindowPage.h"

class QFrame;
class QTimer;

// Page 0: the connection at a glance and the quick-entry search for a location.
class VpnPage : public WindowPage
{
    Q_OBJECT

public:
    explicit VpnPage(QWidget *parent = nullptr);

    // Stops a pending search and hides the quick-entry popup; called when the page is left.
    void closeQuickEntryPopup();
    bool isQuickEntryPopupOpen() const;

    void setDaemonUnavailableReason(const QString &reason);
    void setConnectInProgress(bool inProgress, const QString &targetId, const QString &label);

Q_SIGNALS:
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    void connectNodeRequested(QString nodeID, QString label);
    void recentConnectionsCleared();
    void connectSmartRequested(QString selector);
    void pendingConnectTargetChanged(QString nodeID, QString label);

private:
    QFrame *m_quickEntryPopup;
    QTimer *m_searchTimer;
};
