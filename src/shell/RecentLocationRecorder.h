#pragma once

#include "RecentLocation.h"

#include <QObject>
#include <QString>

class AppState;
class GuiPreferences;
class RecentActivityStore;

// Adds the location of each connection that comes up to the recent locations, once, however it
// was made (the tray, the window, another client) and whether a window exists or not.
class RecentLocationRecorder : public QObject
{
    Q_OBJECT

public:
    RecentLocationRecorder(AppState *state, GuiPreferences *preferences, QObject *parent = nullptr);

private:
    void follow();
    void completeEntry(const RecentLocation &location);

    AppState *m_state;
    RecentActivityStore *m_recent;
    QString m_recordedId;
    bool m_seenStatus = false;
};
