#pragma once

#include "DesktopScheme.h"

#include <QObject>

class PortalColorScheme;

// Follows the desktop's light or dark choice: the toolkit's style hints where they know it
// (Qt 6.5 and later, with a platform theme that reads the desktop), the desktop portal
// otherwise. Starts as Unknown (which reads as light) until told. Every instance shares one
// portal reader per process, so the answer is asked for once and known to each window created
// after it came.
class DesktopColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit DesktopColorScheme(QObject *parent = nullptr);

    DesktopScheme scheme() const;
    // True once the desktop's choice is known, or known to be unavailable: at once where the
    // toolkit knows it, after the portal's answer otherwise.
    bool isSettled() const;

Q_SIGNALS:
    void changed(DesktopScheme scheme);
    void settled();

private:
    PortalColorScheme *m_portal = nullptr;
};
