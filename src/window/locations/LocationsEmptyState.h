#pragma once

#include <QLabel>

// What stands in place of the tree when it has no rows, saying why.
class LocationsEmptyState : public QLabel
{
    Q_OBJECT

public:
    enum class Reason {
        None,
        ServiceUnavailable, // no status from the daemon
        Loading,            // the daemon is there, the catalogue not yet
        LoadFailed,         // the daemon could not send the catalogue
        EmptyCatalogue,     // the daemon sent a catalogue without locations
        NoFavorites,
        EmptyTab,
        NoMatch, // a search found nothing
    };

    explicit LocationsEmptyState(QWidget *parent = nullptr);

    // detail: the search that found nothing, or why the catalogue could not be loaded.
    void setReason(Reason reason, const QString &detail = {});
    Reason reason() const { return m_reason; }

private:
    Reason m_reason = Reason::None;
};
