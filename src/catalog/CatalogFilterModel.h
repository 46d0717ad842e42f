#pragma once

#include <QHash>
#include <QHashFunctions>
#include <QList>
#include <QRegularExpression>
#include <QSortFilterProxyModel>

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
        int row = 0;
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

    struct RowResult
    {
        quint64 matchedAlongPath = 0; // a bit per token met by the row's or an ancestor's text
        qint8 accepted = -1;          // -1 not yet known
    };

    bool matches(const QModelIndex &sourceIndex) const;
    bool descendantMatches(const QModelIndex &sourceIndex) const;
    bool acceptsIndex(const QModelIndex &sourceIndex) const;
    RowResult &result(const QModelIndex &sourceIndex) const;
    bool tokenMatches(const Token &token, const QString &text) const;
    const QString &joinedText(const QModelIndex &sourceIndex) const;
    const QString &subtreeText(const QModelIndex &sourceIndex) const;
    void watchSource();
    void forgetResults();

    QList<Token> m_tokens;
    // Results of the current search, kept until the search or the source changes: a group's
    // answer is reused for the rows below it instead of being worked out again.
    mutable QHash<RowKey, RowResult> m_results;
    mutable QHash<RowKey, QString> m_joined; // only past 64 tokens
    // Every search text at and below a row, kept across searches until the source changes.
    mutable QHash<RowKey, QString> m_subtreeTexts;
    QList<QMetaObject::Connection> m_sourceConnections;
    bool m_refilterQueued = false;
};
