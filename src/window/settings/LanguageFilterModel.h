#pragma once

#include <QSortFilterProxyModel>

// Narrows the language list to the rows whose native name, English name or tag contains every
// word of the search, ignoring case and accents; "Use system language" always stays.
class LanguageFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    enum Role {
        CodeRole = Qt::UserRole + 1, // the tag sent to the daemon; empty for the system choice
        SearchRole,                  // every text a search may match, folded
    };

    explicit LanguageFilterModel(QObject *parent = nullptr);

    void setSearch(const QString &search);
    // Lower case without accents, so "Francais" finds "Français".
    static QString fold(const QString &text);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    QStringList m_words;
};
