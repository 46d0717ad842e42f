#include "CatalogFilterModel.h"

#include "LocationRoles.h"

namespace {

bool isPlainWord(const QString &token)
{
    for (const QChar c : token) {
        const char16_t u = c.unicode();
        if (!((u >= u'a' && u <= u'z') || (u >= u'0' && u <= u'9'))) {
            return false;
        }
    }
    return !token.isEmpty();
}

} // namespace

CatalogFilterModel::CatalogFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(false);
}

QStringList CatalogFilterModel::tokenize(const QString &text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s_-]+"));
    QStringList tokens;
    for (const QString &part : text.toLower().split(separators, Qt::SkipEmptyParts)) {
        const QString trimmed = part.trimmed();
        if (!trimmed.isEmpty()) {
            tokens.append(trimmed);
        }
    }
    return tokens;
}

QStringList CatalogFilterModel::tokens() const
{
    QStringList texts;
    texts.reserve(m_tokens.size());
    for (const Token &token : m_tokens) {
        texts.append(token.text);
    }
    return texts;
}

void CatalogFilterModel::setFilterText(const QString &text)
{
    const QStringList next = tokenize(text);
    if (next == tokens()) {
        return;
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
    beginFilterChange();
#endif
    m_tokens.clear();
    m_tokens.reserve(next.size());
    for (const QString &word : next) {
        Token token{word, {}, isPlainWord(word)};
        if (token.byWord) {
            // Compiled once per search, not per row.
            token.wordStart.setPattern(
                QStringLiteral("\\b%1").arg(QRegularExpression::escape(word)));
            // Unicode word characters, so that "rich" does not start a word inside "zürich".
            token.wordStart.setPatternOptions(QRegularExpression::UseUnicodePropertiesOption);
            token.wordStart.optimize();
        }
        m_tokens.append(token);
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
    endFilterChange(QSortFilterProxyModel::Direction::Rows);
#else
    invalidateFilter();
#endif
}

bool CatalogFilterModel::matches(const QModelIndex &sourceIndex) const
{
    QStringList texts;
    for (QModelIndex index = sourceIndex; index.isValid(); index = index.parent()) {
        texts.prepend(index.data(LocationSearchTextRole).toString());
    }
    const QString joined = texts.join(QLatin1Char(' '));
    for (const Token &token : m_tokens) {
        const bool found =
            token.byWord ? token.wordStart.match(joined).hasMatch() : joined.contains(token.text);
        if (!found) {
            return false;
        }
    }
    return true;
}

bool CatalogFilterModel::descendantMatches(const QModelIndex &sourceIndex) const
{
    const QAbstractItemModel *model = sourceModel();
    const int rows = model->rowCount(sourceIndex);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex child = model->index(row, 0, sourceIndex);
        if (matches(child) || descendantMatches(child)) {
            return true;
        }
    }
    return false;
}

bool CatalogFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (m_tokens.isEmpty()) {
        return true;
    }
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    return matches(index) || descendantMatches(index);
}
