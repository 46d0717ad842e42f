#pragma once

#include <QHash>
#include <QHashFunctions>
#include <QList>
#include <QRegularExpression>
#include <QSortFilterProxyModel>

#include <vector>

// Narrows the locations tree to the rows that match a search. Each word of the search must
// match the row's search text joined with its ancestors' texts; a group stays while any row
// below it matches.
class CatalogFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CatalogFilterModel(QObject *parent = nullptr);

    // Re-filters only when the words of the search change.
    void setFilterText(const QString &text);
    QStringList tokens() const;
    bool isSearching() const { return !m_tokens.isEmpty(); }

    static QStringList tokenize(const QString &text);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    struct Token
    {
        QString text;
        QRegularExpression wordStart; // invalid pattern for tokens matched as plain substrings
        bool byWord = false;
    };
    // A source row as a hash key: its model's internal id with the row (column 0 only), mixed
    // better than QModelIndex's own hash, whose ids and rows overlap in the low bits.
    struct RowKey
    {
        quintptr id = 0;
        int row = -1;
        friend bool operator==(const RowKey &a, const RowKey &b)
        {
            return a.id == b.id && a.row == b.row;
        }
        friend size_t qHash(const RowKey &key, size_t seed = 0)
        {
            return qHashMulti(seed, key.id, key.row);
        }
    };
    static RowKey keyOf(const QModelIndex &index) { return {index.internalId(), index.row()}; }
    // The source tree, flattened level by level so that each row's children are neighbours
    // and come after it; entry 0 stands for the invisible root.
    struct Row
    {
        QString text;
        int parent = 0;
        int firstChild = 0;
        int childCount = 0;
    };

    void ensureRows() const;
    int entryOf(int sourceRow, const QModelIndex &sourceParent) const;
    static bool narrows(const QList<Token> &before, const QList<Token> &after);
    void evaluate() const;
    bool tokenMatches(const Token &token, const QString &text) const;
    void watchSource();
    void forgetRows();

    QList<Token> m_tokens;
    // Read from the source once per change of it and kept across searches.
    mutable std::vector<Row> m_rows;
    mutable QHash<RowKey, int> m_groupEntries; // rows with children
    mutable RowKey m_lastParent;               // the base class asks for siblings in a run
    mutable int m_lastParentEntry = -1;
    // Per entry, whether the search m_acceptedFor keeps the row.
    mutable std::vector<bool> m_accepted;
    mutable QList<Token> m_acceptedFor;
    mutable bool m_evaluated = false; // m_accepted is for the current search
    QList<QMetaObject::Connection> m_sourceConnections;
    bool m_refilterQueued = false;
};
