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
    forgetRows();
    const QAbstractItemModel *source = sourceModel();
    if (!source)
        return;
    // Kept results name rows by position, so any change of rows or texts drops them all.
    const auto forget = [this] { forgetRows(); };
    // The base class filters new or changed rows but never asks again about the groups above
    // them, which may have to appear or go; one full pass once the change is over settles them.
    const auto refilter = [this] {
        forgetRows();
        if (m_tokens.isEmpty() || m_refilterQueued)
            return;
        m_refilterQueued = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_refilterQueued = false;
                if (!m_tokens.isEmpty())
                    invalidate();
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

void CatalogFilterModel::forgetRows()
{
    m_rows.clear();
    m_groupEntries.clear();
    m_lastParent = {};
    m_lastParentEntry = -1;
    m_accepted.clear();
    m_evaluated = false;
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
    m_evaluated = false;
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

void CatalogFilterModel::ensureRows() const
{
    const QAbstractItemModel *source = sourceModel();
    if (!m_rows.empty() || !source)
        return;
    // Level by level: a row's children are appended together when the row's turn comes.
    std::vector<QModelIndex> indexes{QModelIndex()};
    m_rows.emplace_back();
    for (size_t entry = 0; entry < m_rows.size(); ++entry) {
        const QModelIndex parent = indexes[entry];
        const int count = entry == 0 || source->hasChildren(parent) ? source->rowCount(parent) : 0;
        m_rows[entry].firstChild = int(m_rows.size());
        m_rows[entry].childCount = count;
        if (count > 0 && entry > 0)
            m_groupEntries.insert(keyOf(parent), int(entry));
        for (int row = 0; row < count; ++row) {
            const QModelIndex index = source->index(row, 0, parent);
            indexes.push_back(index);
            m_rows.push_back({index.data(LocationSearchTextRole).toString(), int(entry), 0, 0});
        }
    }
}

int CatalogFilterModel::entryOf(int sourceRow, const QModelIndex &sourceParent) const
{
    int parent = 0;
    if (sourceParent.isValid()) {
        const RowKey key = keyOf(sourceParent);
        if (!(key == m_lastParent)) {
            m_lastParent = key;
            m_lastParentEntry = m_groupEntries.value(key, -1);
        }
        parent = m_lastParentEntry;
    }
    if (parent < 0 || size_t(parent) >= m_rows.size() || sourceRow >= m_rows[parent].childCount)
        return -1;
    return m_rows[parent].firstChild + sourceRow;
}

bool CatalogFilterModel::tokenMatches(const Token &token, const QString &text) const
{
    // Candidates by their first character (a vectorised search), then the rest compared. A
    // word starts at the start of the text or after a character that is no word character; the
    // texts are words joined by spaces, so that neighbour is nearly always plain ASCII and
    // decided here, any other is left to the expression's Unicode word characters.
    const QStringView needle(token.text);
    const QStringView haystack(text);
    const qsizetype last = haystack.size() - needle.size();
    for (qsizetype at = haystack.indexOf(needle.front()); at >= 0 && at <= last;
         at = haystack.indexOf(needle.front(), at + 1)) {
        if (haystack.sliced(at, needle.size()) != needle)
            continue;
        if (!token.byWord || at == 0)
            return true;
        const char16_t before = haystack.at(at - 1).unicode();
        if (before >= 0x80)
            return token.wordStart.match(text).hasMatch();
        const bool wordCharacter = (before >= u'a' && before <= u'z') ||
                                   (before >= u'A' && before <= u'Z') ||
                                   (before >= u'0' && before <= u'9') || before == u'_';
        if (!wordCharacter)
            return true;
    }
    return false;
}

bool CatalogFilterModel::narrows(const QList<Token> &before, const QList<Token> &after)
{
    // Each earlier word grown at its end (a word-start match of the longer word is one of the
    // shorter), and perhaps more words: only rows the earlier search kept can stay.
    if (after.size() < before.size())
        return false;
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (!after.at(i).text.startsWith(before.at(i).text) ||
            (before.at(i).byWord && !after.at(i).byWord))
            return false;
    }
    return true;
}

void CatalogFilterModel::evaluate() const
{
    // A token holds no space, so it matches the texts joined by spaces exactly when it matches
    // one of them: at the start of a text a word starts just as after the joining space. Each
    // row therefore keeps a bit per token met along its path, its parent's bits first; 64
    // tokens at a time.
    ensureRows();
    const size_t count = m_rows.size();
    std::vector<bool> candidates;
    if (m_accepted.size() == count && narrows(m_acceptedFor, m_tokens))
        candidates.swap(m_accepted);
    m_accepted.assign(count, true);
    std::vector<quint64> along(count, 0);
    for (qsizetype first = 0; first < m_tokens.size(); first += 64) {
        const qsizetype tokens = std::min<qsizetype>(64, m_tokens.size() - first);
        const quint64 all = tokens == 64 ? ~quint64(0) : (quint64(1) << tokens) - 1;
        for (size_t entry = 1; entry < count; ++entry) {
            if (!candidates.empty() && !candidates[entry]) {
                m_accepted[entry] = false; // and so is every row below it
                continue;
            }
            const Row &row = m_rows[entry];
            quint64 bits = along[size_t(row.parent)];
            for (qsizetype i = 0; i < tokens && bits != all; ++i) {
                const quint64 bit = quint64(1) << i;
                if (!(bits & bit) && tokenMatches(m_tokens.at(first + i), row.text))
                    bits |= bit;
            }
            along[entry] = bits;
            if (bits != all)
                m_accepted[entry] = false;
        }
    }
    // A row also stays for a match below it; every row comes after its ancestors.
    for (size_t entry = count - 1; entry > 0; --entry) {
        if (m_accepted[entry])
            m_accepted[size_t(m_rows[entry].parent)] = true;
    }
    m_acceptedFor = m_tokens;
    m_evaluated = true;
}

bool CatalogFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (m_tokens.isEmpty())
        return true;
    if (!m_evaluated)
        evaluate();
    const int entry = entryOf(sourceRow, sourceParent);
    return entry < 0 || m_accepted[size_t(entry)];
}
