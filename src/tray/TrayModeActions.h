#pragma once

#include "ModeInfo.h"
#include "RoutingMode.h"
#include "TrayMenu.h"

#include <QObject>
#include <QString>
#include <QStringList>

class QMenu;

// The mode, split-option, system-proxy and local-network entries: turns a choice into a request
// signal and re-derives every check mark and title from the mode record. A click decides
// nothing by itself: the marks follow the record, not the pointer.
class TrayModeActions : public QObject
{
    Q_OBJECT

public:
    TrayModeActions(const TrayMenu &menu, QObject *parent = nullptr);

    void apply(const ModeInfo &mode);
    void setEnabled(bool enabled);

    // Fills a "Regions" submenu: the profile's regions and the catalogue's region codes, each a
    // checkable entry; checked means the region takes the route opposite the default route.
    // Returns the number of entries added.
    int fillRegions(SplitFamily family, const ModeInfo &mode, const QStringList &catalogRegions);
    // Drops the entries built by fillRegions; returns how many there were.
    int releaseRegions(SplitFamily family);
    int regionCount(SplitFamily family) const;

    // The mode with the region's membership toggled in the profile's exempt list.
    static ModeInfo withRegionToggled(const ModeInfo &current, SplitFamily family,
                                      const QString &region);
    static QString regionsTitle(const SplitProfileInfo &profile, SplitFamily family);

Q_SIGNALS:
    void modeRequested(const ModeInfo &mode, const QString &statusText);
    void tovraSplitDefaultRouteRequested(const QString &route);
    void tovraSplitRegionRequested(const QString &region);
    void tovraSplitGFWListRequested(bool enabled);
    void tovraSplitCustomRulesRequested(bool enabled);
    void proxyRoutingDefaultRequested(const QString &route);
    void proxyRoutingRegionRequested(const QString &region);
    void proxyRoutingGFWListRequested(bool enabled);
    void systemProxyRequested(const QString &value);
    void localNetworkRequested(const QString &value);

private:
    void connectChoice(QAction *action, ModeChoice choice, const char *statusText);
    QMenu *regionsMenu(SplitFamily family) const;

    TrayMenu m_menu;
    ModeInfo m_mode;
};
