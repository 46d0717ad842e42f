#include "PlainCatalog.h"

#include "Countries.h"

#include <QHeaderView>
#include <QIcon>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int kSearchRole = Qt::UserRole + 1;
constexpr int kNodeRole = Qt::UserRole + 2;

QString pingText(int pingMs)
{
    return pingMs < 0 ? QStringLiteral("\u2014") : QStringLiteral("%1 ms").arg(pingMs);
}

// A country's flag and search words, kept for the whole process as the client's flags are.
struct Place
{
    QIcon flag;
    QString words;
};

const Place &place(const QString &region)
{
    static QHash<QString, Place> places;
    auto found = places.constFind(region);
    if (found == places.cend()) {
        found = places.insert(
            region,
            {QIcon(QStringLiteral(":/flags/%1.png").arg(region)),
             QStringList{region, countryEnglishName(region), countryName(region)}.join(u' ')});
    }
    return *found;
}

int countNodes(const QAbstractItemModel &model, const QModelIndex &parent)
{
    int count = 0;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        count += index.data(kNodeRole).toBool() ? 1 : countNodes(model, index);
    }
    return count;
}

} // namespace

PlainCatalog::PlainCatalog(QWidget *parent)
    : QWidget(parent)
    , m_search(new QLineEdit(this))
    , m_tree(new QTreeView(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_tree, 1);
    m_proxy.setSourceModel(&m_model);
    m_proxy.setRecursiveFilteringEnabled(true);
    m_proxy.setFilterRole(kSearchRole);
    m_tree->setModel(&m_proxy);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    connect(m_search, &QLineEdit::textChanged, this, &PlainCatalog::searchChanged);
}

void PlainCatalog::setCatalog(const NodeGroupsInfo &groups, const NodesInfo &nodes)
{
    m_model.clear();
    m_model.setColumnCount(2);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->resizeSection(1, 70);
    m_pingItems.clear();
    m_pingItems.reserve(nodes.nodes.size());
    QHash<QString, const NodeEntry *> byId;
    byId.reserve(nodes.nodes.size());
    for (const NodeEntry &node : nodes.nodes)
        byId.insert(node.id, &node);
    // Each continent is filled before it joins the model: one insertion each, not one per row.
    for (const NodeGroupEntry &group : groups.groups)
        addGroup(m_model.invisibleRootItem(), group, QString(), byId);
}

void PlainCatalog::addGroup(QStandardItem *parent, const NodeGroupEntry &group,
                            const QString &pathText, const QHash<QString, const NodeEntry *> &byId)
{
    auto *item = new QStandardItem(group.name);
    const QString text =
        QString(pathText + u' ' + group.name + u' ' + group.code).trimmed().toLower();
    item->setData(text, kSearchRole);
    for (const NodeGroupEntry &subgroup : group.subgroups)
        addGroup(item, subgroup, text, byId);
    for (const QString &id : group.nodeIds) {
        const NodeEntry *node = byId.value(id);
        if (!node)
            continue;
        // The words the row is known by: its groups', its name, its tags, its tier, its country.
        QStringList words{text, node->name};
        for (const QString &tag : node->tags) {
            if (tag.compare(u"FAVORITE", Qt::CaseInsensitive) != 0)
                words << tag;
            if (tag.compare(u"SVIP", Qt::CaseInsensitive) == 0)
                words << QStringLiteral("premium");
        }
        const Place &where = place(node->region);
        words << where.words;
        auto *name = new QStandardItem(where.flag, node->name);
        name->setData(words.join(u' ').toLower(), kSearchRole);
        name->setData(true, kNodeRole);
        auto *ping = new QStandardItem(pingText(node->pingMs));
        m_pingItems.insert(node->id, ping);
        item->appendRow({name, ping});
    }
    parent->appendRow({item, new QStandardItem});
}

void PlainCatalog::updatePings(const NodesInfo &nodes)
{
    for (const NodeEntry &node : nodes.nodes) {
        if (QStandardItem *item = m_pingItems.value(node.id))
            item->setText(pingText(node.pingMs)); // no signal when the text stays
    }
}

void PlainCatalog::searchChanged(const QString &text)
{
    // Every word must start a word of the row's text: one look-ahead per word.
    static const QRegularExpression separators(QStringLiteral("[\\s_-]+"));
    QString pattern;
    for (const QString &word : text.toLower().split(separators, Qt::SkipEmptyParts))
        pattern += QStringLiteral("(?=.*\\b%1)").arg(QRegularExpression::escape(word));
    m_proxy.setFilterRegularExpression(
        QRegularExpression(pattern.isEmpty() ? pattern : u'^' + pattern,
                           QRegularExpression::UseUnicodePropertiesOption));
}

int PlainCatalog::matchingNodes() const
{
    return countNodes(m_proxy, {});
}
