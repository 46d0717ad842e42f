#include "LocationsStatusLine.h"

#include "ModelRows.h"

#include "BidiText.h"
#include "CatalogFilterModel.h"
#include "CatalogTreeModel.h"
#include "Countries.h"
#include "GuiTextLog.h"
#include "LocationRoles.h"

#include <QTimer>

LocationsStatusLine::LocationsStatusLine(const CatalogTreeModel *model,
                                         const CatalogFilterModel *filter, QWidget *parent)
    : QLabel(parent)
    , m_model(model)
    , m_filter(filter)
    , m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("TovraLocationsStatus"));
    setProperty("tovraRole", QStringLiteral("muted"));
    setWordWrap(true);
    m_timer->setSingleShot(true);
    m_timer->setInterval(150);
    connect(m_timer, &QTimer::timeout, this, &LocationsStatusLine::refresh);
}

void LocationsStatusLine::setCatalogue(bool known, bool groupsKnown, const NodeEntry &connected)
{
    m_known = known;
    m_groupsKnown = groupsKnown;
    m_connected = connected;
    // Counting the nodes indexes the whole tree: in an event of its own, not on top of a rebuild.
    if (!m_timer->isActive())
        m_timer->start();
}

void LocationsStatusLine::showHint(const QString &text)
{
    m_hint = text;
    refresh();
}

void LocationsStatusLine::clearHint()
{
    if (m_hint.isEmpty())
        return;
    m_hint.clear();
    refresh();
}

void LocationsStatusLine::refreshSoon()
{
    m_timer->start();
}

QString LocationsStatusLine::connectedPath() const
{
    if (!m_connected.valid || m_connected.id.isEmpty())
        return {};
    // Outermost first, as the tree shows it; a node the tab hides still names its country.
    QStringList path;
    for (QModelIndex index = m_model->indexForNode(m_connected.id); index.isValid();
         index = index.parent())
        path.prepend(isolated(index.data().toString()));
    if (path.isEmpty()) {
        if (!m_connected.region.trimmed().isEmpty())
            path << isolated(countryName(m_connected.region));
        path << isolated(CatalogTreeBuilder::nodeLabel(m_connected));
    }
    return path.join(QStringLiteral(" \u203a "));
}

void LocationsStatusLine::refresh()
{
    m_timer->stop();
    QStringList parts;
    if (!m_hint.isEmpty()) {
        parts << m_hint;
    } else if (m_known) {
        if (m_filter->isSearching()) {
            int matches = 0;
            forEachRow(m_filter, {}, [&matches](const QModelIndex &index) {
                matches += index.data(LocationIsGroupRole).toBool() ? 0 : 1;
                return true;
            });
            parts << tr("Matches in every tab: %1").arg(matches);
        } else {
            parts << tr("Locations: %1").arg(m_model->nodeCount());
        }
        if (const QString where = connectedPath(); !where.isEmpty())
            parts << tr("Connected to %1").arg(where);
        if (m_model->nodes().pingRunning)
            parts << tr("Measuring latency...");
        if (m_model->nodes().stale || m_model->nodeGroups().stale)
            parts << tr("This list may be out of date; Refresh fetches a new one.");
        else if (!m_groupsKnown)
            parts << tr("Grouping by region until the service's groups arrive.");
    }
    setText(parts.join(QStringLiteral(" \u00b7 ")));
    guiTextLog("window.locations", text());
    setVisible(!parts.isEmpty());
}
