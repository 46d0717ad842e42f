#include "LocationsPage.h"

LocationsPage::LocationsPage(QWidget *parent)
    : WindowPage(QStringLiteral("TovraLocationsPage"), tr("All locations"),
                 tr("Every location of the service appears here, with your favourites."), parent)
{}

void LocationsPage::pageShown()
{
    ++m_shownCount;
}
