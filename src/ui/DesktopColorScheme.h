#pragma once

#include "DesktopScheme.h"

#include <QObject>

class PortalColorScheme;

// Follows the desktop's light or dark choice: the toolkit's style hints where they know it
// (Qt 6.5 and later, with a platform theme that reads the desktop), the desktop portal
// otherwise. Its contrast preference comes from the portal, and from the toolkit too on
// Qt 6.10 and later: either asking for more is enough. Starts as Unknown (which reads as light)
// until told. Every instance shares one portal reader per process, so the answer is asked for once
// and known to each window created after it came.
class DesktopColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit DesktopColorScheme(QObject *parent = nullptr);

    DesktopScheme scheme() const;
    Contrast contrast() const;
    // True once the desktop's choices are known, or known to be unavailable: after the
    // portal's answer, or at once without a session bus.
    bool isSettled() const;

Q_SIGNALS:
    void changed(DesktopScheme scheme);
    void contrastChanged(Contrast contrast);
    void settled();

private:
    PortalColorScheme *m_portal = nullptr;
    // The portal's scheme counts only where the toolkit does not know it.
    bool m_schemeFromPortal = false;
};
