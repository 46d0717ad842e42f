#pragma once

#include "ModeInfo.h"

#include <QFrame>

class ModeInlineError;
class ModeSegmentedBar;

// Local network access and the desktop's system proxy, each with the daemon's current value.
class NetworkOptionsCard : public QFrame
{
    Q_OBJECT

public:
    explicit NetworkOptionsCard(QWidget *parent = nullptr);

    void refresh(const ModeInfo &mode);
    void setControlsEnabled(bool enabled);

    ModeSegmentedBar *localNetworkBar() const { return m_localNetwork; }
    ModeSegmentedBar *systemProxyBar() const { return m_systemProxy; }
    ModeInlineError *inlineError() const { return m_error; }

Q_SIGNALS:
    void setLocalNetworkRequested(QString mode);
    void setSystemProxyRequested(QString mode);

private:
    ModeSegmentedBar *m_localNetwork;
    ModeSegmentedBar *m_systemProxy;
    ModeInlineError *m_error;
};
