#pragma once

#include <QHash>
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
    void watchSource();
    void forgetResults();

    QList<Token> m_tokens;
    // Results of the current search, kept until the search or the source changes: a group's
    // answer is reused for the rows below it instead of being worked out again.
    mutable QHash<QModelIndex, RowResult> m_results;
    mutable QHash<QModelIndex, QString> m_joined; // only past 64 tokens
    QList<QMetaObject::Connection> m_sourceConnections;
    bool m_refilterQueued = false;
};
