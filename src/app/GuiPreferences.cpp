#include "GuiPreferences.h"

#include "TranslationManager.h"

#include <QMetaEnum>
#include <QSettings>

namespace {

const QString kShowOnLaunch = QStringLiteral("window/showOnLaunch");
const QString kLaunchAtLogin = QStringLiteral("window/launchAtLogin");
const QString kAppearance = QStringLiteral("appearance");
const QString kLastLanguage = QStringLiteral("language/lastEffective");
const QString kRecentNodes = QStringLiteral("vpn/recentNodes");
const QString kRecentSearches = QStringLiteral("vpn/recentSearches");
const QString kRecentNodesCleared = QStringLiteral("vpn/recentNodesCleared");
const QString kLocationsSort = QStringLiteral("locations/sort");
const QString kUpdateVersion = QStringLiteral("update/currentVersion");
const QString kLastAttemptAt = QStringLiteral("update/lastAttemptAt");
const QString kLastSuccessfulCheckAt = QStringLiteral("update/lastSuccessfulCheckAt");
const QString kLastNotifiedAt = QStringLiteral("update/lastNotifiedAt");
const QString kLastNotifiedVersionNum = QStringLiteral("update/lastNotifiedVersionNum");
const QString kForceUpgrade = QStringLiteral("update/forceUpgrade");
const QString kMutedVersionNum = QStringLiteral("update/mutedVersionNum");

QString canonicalAppearance(const QString &text)
{
    const QString value = text.trimmed().toLower();
    if (value == u"light" || value == u"dark")
        return value;
    return QStringLiteral("system");
}

} // namespace

GuiPreferences::GuiPreferences(QObject *parent)
    : QObject(parent)
    , m_settings(new QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Tovra"),
                               QStringLiteral("TovraVPN"), this))
{}

GuiPreferences::~GuiPreferences() = default;

QString GuiPreferences::fileName() const
{
    return m_settings->fileName();
}

bool GuiPreferences::showOnLaunch() const
{
    return readBool(kShowOnLaunch, true);
}

void GuiPreferences::setShowOnLaunch(bool show)
{
    write(kShowOnLaunch, show);
}

bool GuiPreferences::launchAtLogin() const
{
    return readBool(kLaunchAtLogin, false);
}

void GuiPreferences::setLaunchAtLogin(bool enabled)
{
    write(kLaunchAtLogin, enabled);
}

QString GuiPreferences::appearance() const
{
    return canonicalAppearance(m_settings->value(kAppearance).toString());
}

void GuiPreferences::setAppearance(const QString &appearance)
{
    write(kAppearance, canonicalAppearance(appearance));
}

QString GuiPreferences::lastEffectiveLanguage() const
{
    return m_settings->value(kLastLanguage).toString().trimmed();
}

void GuiPreferences::setLastEffectiveLanguage(const QString &tag)
{
    const QString trimmed = tag.trimmed();
    if (trimmed.isEmpty()) {
        m_settings->remove(kLastLanguage);
        persist();
        return;
    }
    write(kLastLanguage, TranslationManager::normalize(trimmed));
}

QList<RecentLocation> GuiPreferences::recentNodes(qsizetype maxCount) const
{
    QList<RecentLocation> nodes;
    const int size = m_settings->beginReadArray(kRecentNodes);
    const int count = int(qMin<qsizetype>(size, qMax<qsizetype>(maxCount, 0)));
    nodes.reserve(count);
    for (int i = 0; i < count; ++i) {
        m_settings->setArrayIndex(i);
        nodes.append(RecentLocation{m_settings->value(QStringLiteral("id")).toString(),
                                    m_settings->value(QStringLiteral("label")).toString(),
                                    m_settings->value(QStringLiteral("flagCode")).toString()});
    }
    m_settings->endArray();
    return nodes;
}

void GuiPreferences::setRecentNodes(const QList<RecentLocation> &nodes)
{
    // Rewritten as a whole: remove first so a shorter list leaves no stale tail behind.
    m_settings->remove(kRecentNodes);
    m_settings->beginWriteArray(kRecentNodes, int(nodes.size()));
    for (int i = 0; i < nodes.size(); ++i) {
        m_settings->setArrayIndex(i);
        m_settings->setValue(QStringLiteral("id"), nodes.at(i).id);
        m_settings->setValue(QStringLiteral("label"), nodes.at(i).label);
        m_settings->setValue(QStringLiteral("flagCode"), nodes.at(i).flagCode);
    }
    m_settings->endArray();
    persist();
    Q_EMIT recentNodesChanged();
}

QStringList GuiPreferences::recentSearches() const
{
    return m_settings->value(kRecentSearches).toStringList();
}

void GuiPreferences::setRecentSearches(const QStringList &searches)
{
    write(kRecentSearches, searches);
    Q_EMIT recentSearchesChanged();
}

bool GuiPreferences::recentNodesCleared() const
{
    return readBool(kRecentNodesCleared, false);
}

void GuiPreferences::setRecentNodesCleared(bool cleared)
{
    write(kRecentNodesCleared, cleared);
}

QString GuiPreferences::locationsSort() const
{
    return m_settings->value(kLocationsSort).toString().trimmed().toLower();
}

void GuiPreferences::setLocationsSort(const QString &sort)
{
    write(kLocationsSort, sort.trimmed().toLower());
}

GuiUpdateBookkeeping GuiPreferences::updateBookkeeping(const QString &runningVersion) const
{
    if (m_settings->value(kUpdateVersion).toString().trimmed() != runningVersion.trimmed())
        return {};
    GuiUpdateBookkeeping state;
    state.lastAttemptAt = readInt64(kLastAttemptAt);
    state.lastSuccessfulCheckAt = readInt64(kLastSuccessfulCheckAt);
    state.lastNotifiedAt = readInt64(kLastNotifiedAt);
    state.lastNotifiedVersionNum = readInt64(kLastNotifiedVersionNum);
    state.forceUpgrade = readBool(kForceUpgrade, false);
    state.mutedVersionNum = readInt64(kMutedVersionNum);
    return state;
}

void GuiPreferences::setUpdateBookkeeping(const QString &runningVersion,
                                          const GuiUpdateBookkeeping &state)
{
    m_settings->setValue(kUpdateVersion, runningVersion.trimmed());
    m_settings->setValue(kLastAttemptAt, state.lastAttemptAt);
    m_settings->setValue(kLastSuccessfulCheckAt, state.lastSuccessfulCheckAt);
    m_settings->setValue(kLastNotifiedAt, state.lastNotifiedAt);
    m_settings->setValue(kLastNotifiedVersionNum, state.lastNotifiedVersionNum);
    m_settings->setValue(kForceUpgrade, state.forceUpgrade);
    m_settings->setValue(kMutedVersionNum, state.mutedVersionNum);
    persist();
}

bool GuiPreferences::readBool(const QString &key, bool fallback) const
{
    // INI stores text; only an explicit true or false counts, a hand-edited typo keeps the
    // default instead of reading as true.
    const QString text = m_settings->value(key).toString().trimmed().toLower();
    if (text == u"true" || text == u"1")
        return true;
    if (text == u"false" || text == u"0")
        return false;
    return fallback;
}

qint64 GuiPreferences::readInt64(const QString &key) const
{
    bool ok = false;
    const qint64 value = m_settings->value(key).toString().trimmed().toLongLong(&ok);
    return ok ? value : 0;
}

void GuiPreferences::write(const QString &key, const QVariant &value)
{
    m_settings->setValue(key, value);
    persist();
}

void GuiPreferences::persist()
{
    m_settings->sync();
    const QSettings::Status status = m_settings->status();
    if (status != QSettings::NoError) {
        qWarning("GuiPreferences: failed to persist settings, status %s",
                 QMetaEnum::fromType<QSettings::Status>().valueToKey(status));
    }
}
