#pragma once

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

    bool matches(const QModelIndex &sourceIndex) const;
    bool descendantMatches(const QModelIndex &sourceIndex) const;

    QList<Token> m_tokens;
};
