#pragma once

#include "DesktopScheme.h"

#include <QObject>

class PortalColorScheme;

// Follows the desktop's light or dark choice: the toolkit's style hints where they know it,
// the desktop portal otherwise. Starts as Unknown (which reads as light) until told.
class DesktopColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit DesktopColorScheme(QObject *parent = nullptr);

    DesktopScheme scheme() const;

Q_SIGNALS:
    void changed(DesktopScheme scheme);

private:
    PortalColorScheme *m_portal = nullptr;
};
