#include "LanguageFilterModel.h"

#include <QRegularExpression>

LanguageFilterModel::LanguageFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{}

QString LanguageFilterModel::fold(const QString &text)
{
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    QString folded;
    folded.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (c.category() != QChar::Mark_NonSpacing)
            folded.append(c);
    }
    return folded.toCaseFolded();
}

void LanguageFilterModel::setSearch(const QString &search)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QStringList words = fold(search).split(blanks, Qt::SkipEmptyParts);
    if (words == m_words)
        return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
    beginFilterChange();
    m_words = words;
    endFilterChange(QSortFilterProxyModel::Direction::Rows);
#else
    m_words = words;
    invalidateFilter();
#endif
}

bool LanguageFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    if (index.data(CodeRole).toString().isEmpty())
        return true;
    const QString haystack = index.data(SearchRole).toString();
    for (const QString &word : m_words) {
        if (!haystack.contains(word))
            return false;
    }
    return true;
}
