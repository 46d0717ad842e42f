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
    // A row whose search text changes is filtered again.
    setFilterRole(LocationSearchTextRole);
    connect(this, &QAbstractProxyModel::sourceModelChanged, this, &CatalogFilterModel::watchSource);
}

void CatalogFilterModel::watchSource()
{
    for (const QMetaObject::Connection &connection : std::as_const(m_sourceConnections))
        disconnect(connection);
    m_sourceConnections.clear();
    forgetResults();
    m_subtreeTexts.clear();
    const QAbstractItemModel *source = sourceModel();
    if (!source)
        return;
    // Kept results name rows by position, so any change of rows or texts drops them all.
    const auto forget = [this] {
        forgetResults();
        m_subtreeTexts.clear();
    };
    // The base class filters new or changed rows but never asks again about the groups above
    // them, which may have to appear or go; one full pass once the change is over settles them.
    const auto refilter = [this] {
        forgetResults();
        m_subtreeTexts.clear();
        if (m_tokens.isEmpty() || m_refilterQueued)
            return;
        m_refilterQueued = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_refilterQueued = false;
                if (!m_tokens.isEmpty()) {
                    forgetResults();
                    invalidate();
                }
            },
            Qt::QueuedConnection);
    };
    m_sourceConnections = {
        connect(source, &QAbstractItemModel::rowsAboutToBeInserted, this, forget),
        connect(source, &QAbstractItemModel::rowsAboutToBeRemoved, this, forget),
        connect(source, &QAbstractItemModel::rowsAboutToBeMoved, this, forget),
        connect(source, &QAbstractItemModel::layoutAboutToBeChanged, this, forget),
        connect(source, &QAbstractItemModel::modelAboutToBeReset, this, forget),
        connect(source, &QAbstractItemModel::rowsInserted, this, refilter),
        connect(source, &QAbstractItemModel::rowsRemoved, this, refilter),
        connect(source, &QAbstractItemModel::rowsMoved, this, refilter),
        connect(source, &QAbstractItemModel::dataChanged, this,
                [refilter](const QModelIndex &, const QModelIndex &, const QList<int> &roles) {
                    if (roles.isEmpty() || roles.contains(LocationSearchTextRole))
                        refilter();
                }),
    };
}

void CatalogFilterModel::forgetResults()
{
    m_results.clear();
    m_joined.clear();
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
    forgetResults();
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
    // One layout change for the whole tree: filtering row by row would announce every group's
    // inserted and removed rows apiece, and each announcement walks every persistent index.
    invalidate();
}

const QString &CatalogFilterModel::joinedText(const QModelIndex &sourceIndex) const
{
    // The outermost group's text first, then each level down, joined by single spaces.
    auto found = m_joined.constFind(keyOf(sourceIndex));
    if (found != m_joined.cend())
        return found.value();
    const QString own = sourceIndex.data(LocationSearchTextRole).toString();
    const QModelIndex parent = sourceIndex.parent();
    QString joined = parent.isValid() ? joinedText(parent) + QLatin1Char(' ') + own : own;
    return m_joined.insert(keyOf(sourceIndex), joined).value();
}

bool CatalogFilterModel::tokenMatches(const Token &token, const QString &text) const
{
    // Most texts do not hold the token at all; the plain search rules them out before the
    // word-start expression is asked.
    if (!text.contains(token.text))
        return false;
    return !token.byWord || token.wordStart.match(text).hasMatch();
}

CatalogFilterModel::RowResult &CatalogFilterModel::result(const QModelIndex &sourceIndex) const
{
    auto found = m_results.find(keyOf(sourceIndex));
    if (found != m_results.end())
        return found.value();
    const QModelIndex parent = sourceIndex.parent();
    RowResult row;
    row.matchedAlongPath = parent.isValid() ? result(parent).matchedAlongPath : 0;
    const QString own = sourceIndex.data(LocationSearchTextRole).toString();
    for (qsizetype i = 0; i < m_tokens.size() && i < 64; ++i) {
        const quint64 bit = quint64(1) << i;
        if (!(row.matchedAlongPath & bit) && tokenMatches(m_tokens.at(i), own))
            row.matchedAlongPath |= bit;
    }
    return m_results.insert(keyOf(sourceIndex), row).value();
}

bool CatalogFilterModel::matches(const QModelIndex &sourceIndex) const
{
    // A token holds no space, so it matches the texts joined by spaces exactly when it matches
    // one of them: at the start of a text a word starts just as after the joining space. Each
    // row therefore keeps which tokens its own and its ancestors' texts match, and the joined
    // text is built only for searches of more words than those bits hold.
    if (m_tokens.size() <= 64) {
        const quint64 all =
            m_tokens.size() == 64 ? ~quint64(0) : (quint64(1) << m_tokens.size()) - 1;
        return result(sourceIndex).matchedAlongPath == all;
    }
    const QString &joined = joinedText(sourceIndex);
    for (const Token &token : m_tokens) {
        if (!tokenMatches(token, joined))
            return false;
    }
    return true;
}

const QString &CatalogFilterModel::subtreeText(const QModelIndex &sourceIndex) const
{
    auto found = m_subtreeTexts.constFind(keyOf(sourceIndex));
    if (found != m_subtreeTexts.cend())
        return found.value();
    QString text = sourceIndex.data(LocationSearchTextRole).toString();
    const QAbstractItemModel *model = sourceModel();
    const int rows = model->rowCount(sourceIndex);
    for (int row = 0; row < rows; ++row) {
        const QString &below = subtreeText(model->index(row, 0, sourceIndex));
        text += QLatin1Char(' ') + below;
    }
    return m_subtreeTexts.insert(keyOf(sourceIndex), text).value();
}

bool CatalogFilterModel::descendantMatches(const QModelIndex &sourceIndex) const
{
    const QAbstractItemModel *model = sourceModel();
    // A word that neither the path down to here nor any text below holds rules out every row
    // below at once; narrow searches skip most of the catalogue this way. The path's bits cover
    // the first 64 words; any further word is looked for in the joined path text itself.
    const quint64 onPath = result(sourceIndex).matchedAlongPath;
    for (qsizetype i = 0; i < m_tokens.size(); ++i) {
        const Token &token = m_tokens.at(i);
        const bool metOnPath = i < 64 ? (onPath & (quint64(1) << i)) != 0
                                      : tokenMatches(token, joinedText(sourceIndex));
        if (!metOnPath && !subtreeText(sourceIndex).contains(token.text))
            return false;
    }
    const int rows = model->rowCount(sourceIndex);
    for (int row = 0; row < rows; ++row) {
        if (acceptsIndex(model->index(row, 0, sourceIndex))) {
            return true;
        }
    }
    return false;
}

bool CatalogFilterModel::acceptsIndex(const QModelIndex &sourceIndex) const
{
    if (const qint8 known = result(sourceIndex).accepted; known >= 0)
        return known == 1;
    const bool accepted = matches(sourceIndex) || descendantMatches(sourceIndex);
    // Looked up again: the descendants' results may have moved the hash's storage.
    result(sourceIndex).accepted = accepted ? 1 : 0;
    return accepted;
}

bool CatalogFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (m_tokens.isEmpty()) {
        return true;
    }
    return acceptsIndex(sourceModel()->index(sourceRow, 0, sourceParent));
}
