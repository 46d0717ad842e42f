#pragma once

#include "TrayMenu.h"

#include <QObject>
#include <QStringList>

class AppState;
class TrayMenuCloseWatcher;
class TrayModeActions;
class TrayNodeLoader;
class TrayNodeMenuModel;

// One opening of the tray menu: the node entries and the region submenus are filled as they
// open and emptied again once the menu and every submenu have closed, so that a closed menu
// holds only the entries it always shows.
class TrayMenuSession : public QObject
{
    Q_OBJECT

public:
    TrayMenuSession(AppState *state, const TrayMenu &menu, TrayModeActions *modeActions,
                    TrayNodeLoader *nodeLoader, TrayNodeMenuModel *nodeModel,
                    QObject *parent = nullptr);

    // Some desktops lay a submenu out wrongly the first time it opens; opens it once unseen.
    void prewarm();

Q_SIGNALS:
    void opened();
    // The entries are emptied by then.
    void closed();

private:
    void release();
    QStringList catalogRegions() const;

    AppState *m_state;
    TrayMenu m_menu;
    TrayModeActions *m_modeActions;
    TrayNodeLoader *m_nodeLoader;
    TrayNodeMenuModel *m_nodeModel;
    TrayMenuCloseWatcher *m_closeWatcher;
    bool m_nodesExpanded = false;
};
