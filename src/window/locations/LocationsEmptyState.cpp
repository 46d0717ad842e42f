#include "LocationsEmptyState.h"

#include "BidiText.h"
#include "GuiTextLog.h"

LocationsEmptyState::LocationsEmptyState(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("TovraLocationsEmpty"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::NoFocus);
}

void LocationsEmptyState::setReason(Reason reason, const QString &detail)
{
    m_reason = reason;
    QString text;
    switch (reason) {
    case Reason::None:
        break;
    case Reason::ServiceUnavailable:
        text = tr("The Tovra service is not available.\nLocations appear here as soon as it "
                  "responds.");
        break;
    case Reason::Loading:
        text = tr("Loading locations...");
        break;
    case Reason::LoadFailed:
        //: %1 is the service's own error text
        text = tr("Could not load the locations: %1\nPress Refresh to try again.")
                   .arg(isolated(detail.trimmed()));
        break;
    case Reason::EmptyCatalogue:
        text = tr("The service has no locations to offer right now.\nTry Refresh in a moment.");
        break;
    case Reason::NoFavorites:
        text = tr("No favourites yet.\nStar a location (or select it and press Space) to keep "
                  "it here.");
        break;
    case Reason::EmptyTab:
        text = tr("No locations in this tab.");
        break;
    case Reason::NoMatch:
        text = tr("Nothing matches “%1”.\nTry a country, a city or a code such as "
                  "“de”.")
                   .arg(isolated(detail.trimmed()));
        break;
    }
    setText(text);
    setAccessibleName(text);
    guiTextLog("window.locations.empty", text);
}
