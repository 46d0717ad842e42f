#pragma once

#include "WindowPage.h"

// Page 1: the catalogue of locations with favourites and search.
class LocationsPage : public WindowPage
{
    Q_OBJECT

public:
    explicit LocationsPage(QWidget *parent = nullptr);

    // The window calls this each time the page becomes current.
    void pageShown();
    int shownCount() const { return m_shownCount; }

Q_SIGNALS:
    void refreshLocationsRequested();
    void connectNodeRequested(QString nodeID, QString label);
    void connectSmartRequested(QString selector);
    void setNodeFavoriteRequested(QString nodeID, bool favorite);
    void pendingConnectTargetChanged(QString nodeID, QString label);

private:
    int m_shownCount = 0;
};
