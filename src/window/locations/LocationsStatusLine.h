#pragma once

#include "NodeEntry.h"

#include <QLabel>

class CatalogFilterModel;
class CatalogTreeModel;
class QTimer;

// The line below the locations tree: how many locations (or matches of a search), where the
// tunnel is, whether latency is being measured or the list may be old; or, until the current
// row changes, a hint about the last thing asked for.
class LocationsStatusLine : public QLabel
{
    Q_OBJECT

public:
    LocationsStatusLine(const CatalogTreeModel *model, const CatalogFilterModel *filter,
                        QWidget *parent = nullptr);

    // What the store says; connected is invalid unless the tunnel is up.
    void setCatalogue(bool known, bool groupsKnown, const NodeEntry &connected);
    void showHint(const QString &text);
    void clearHint();
    void refresh();
    // Counting matches walks every row: once typing pauses, not on each key.
    void refreshSoon();

private:
    // "Europe > Germany > Frankfurt > Frankfurt 01"; empty when not connected.
    QString connectedPath() const;

    const CatalogTreeModel *m_model;
    const CatalogFilterModel *m_filter;
    QTimer *m_timer;
    NodeEntry m_connected;
    QString m_hint;
    bool m_known = false;
    bool m_groupsKnown = false;
};
