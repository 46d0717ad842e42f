#include "UpdateStore.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>
#include <QStringList>

namespace {

const char *const LatestVersion = "0.3.0";
constexpr qint64 ArtifactBytes = 2 * 1024 * 1024 + 123457;
constexpr int DownloadSteps = 20;
constexpr int StepMs = 100;
constexpr int PhaseMs = 400;

// Deterministic, incompressible-looking bytes, so that the digest is stable across runs.
QByteArray makeArtifact()
{
    QByteArray bytes(ArtifactBytes, Qt::Uninitialized);
    quint32 state = 0x7f4a7c15u;
    for (qint64 i = 0; i < ArtifactBytes; ++i) {
        state = state * 1664525u + 1013904223u;
        bytes[i] = char(state >> 24);
    }
    return bytes;
}

QString isoNow()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
}

} // namespace

UpdateStore::UpdateStore(const QString &downloadDir, const QString &vendorHost, bool forceUpgrade,
                         bool flakyNetwork, QObject *parent)
    : QObject(parent)
    , m_downloadDir(downloadDir)
    , m_vendorHost(vendorHost)
    , m_forceUpgrade(forceUpgrade)
    , m_flakyNetwork(flakyNetwork)
    , m_artifact(makeArtifact())
    , m_artifactSha256(QCryptographicHash::hash(m_artifact, QCryptographicHash::Sha256).toHex())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &UpdateStore::advance);
}

UpdateStore::~UpdateStore()
{
    QFile::remove(localPath());
}

qint64 UpdateStore::versionNumber(const QString &version)
{
    static const QRegularExpression pattern(
        QStringLiteral("^v?(\\d{1,3})\\.(\\d{1,3})(?:\\.(\\d{1,3}))?(?:[+-].*)?$"));
    const QRegularExpressionMatch match = pattern.match(version.trimmed());
    if (!match.hasMatch())
        return -1;
    return match.captured(1).toLongLong() * 1000000 + match.captured(2).toLongLong() * 1000 +
           match.captured(3).toLongLong();
}

QString UpdateStore::artifactUrl() const
{
    return QStringLiteral("https://%1/download/linux/tovra-gui-%2-amd64.tar.gz")
        .arg(m_vendorHost, QLatin1String(LatestVersion));
}

QString UpdateStore::localPath() const
{
    return m_downloadDir +
           QStringLiteral("/tovra-gui-%1-amd64.tar.gz").arg(QLatin1String(LatestVersion));
}

QString UpdateStore::check(const QString &guiVersion, QJsonObject *answer) const
{
    const qint64 current = versionNumber(guiVersion);
    if (current < 0)
        return QStringLiteral("invalid GUI version \"%1\"").arg(guiVersion);
    const qint64 latest = versionNumber(QLatin1String(LatestVersion));
    const QString base = QStringLiteral("https://%1/download/linux/tovra-gui-%2-")
                             .arg(m_vendorHost, QLatin1String(LatestVersion));
    const QJsonObject download{
        {QStringLiteral("recommended"), QStringLiteral("amd64")},
        {QStringLiteral("universal_download_link"),
         QStringLiteral("https://%1/download").arg(m_vendorHost)},
        {QStringLiteral("arm64_download_link"), QString(base + QStringLiteral("arm64.tar.gz"))},
        {QStringLiteral("amd64_download_link"), QString(base + QStringLiteral("amd64.tar.gz"))},
        {QStringLiteral("recommended_artifact"),
         QJsonObject{{QStringLiteral("url"), artifactUrl()},
                     {QStringLiteral("sha256"), QString::fromLatin1(m_artifactSha256)},
                     {QStringLiteral("size_bytes"), ArtifactBytes}}}};
    const QJsonObject latestObject{
        {QStringLiteral("version_code"), QLatin1String(LatestVersion)},
        {QStringLiteral("version_num"), double(latest)},
        {QStringLiteral("is_force_upgrade"), m_forceUpgrade},
        {QStringLiteral("should_gray_release_upgrade"), false},
        {QStringLiteral("download"), download},
        {QStringLiteral("change_log"),
         QJsonArray{QStringLiteral("Locations load faster and keep their ping while refreshing."),
                    QStringLiteral("Kill Switch shows when the daemon holds it in lockdown."),
                    QStringLiteral("Split rules can be imported from a file."),
                    QStringLiteral("Fixed the tray menu staying disabled after waking up.")}}};
    *answer = {{QStringLiteral("platform"), QStringLiteral("linux-amd64")},
               {QStringLiteral("current_version"), guiVersion},
               {QStringLiteral("current_version_num"), double(current)},
               {QStringLiteral("update_available"), latest > current},
               {QStringLiteral("latest"), latestObject},
               {QStringLiteral("checked_at"), isoNow()}};
    return {};
}

QString UpdateStore::start(const QString &guiVersion, qint64 expectedVersionNum, bool viaTunnel)
{
    if (versionNumber(guiVersion) < 0)
        return QStringLiteral("invalid GUI version \"%1\"").arg(guiVersion);
    if (running())
        return {}; // already under way: the running download is the answer
    m_currentVersion = guiVersion;
    m_bytesDownloaded = 0;
    m_retried = false;
    m_errorCode.clear();
    m_errorMessage.clear();
    m_egress = viaTunnel ? QStringLiteral("tunnel") : QStringLiteral("direct");
    m_startedAt = QDateTime::currentDateTimeUtc();
    QFile::remove(localPath());
    const qint64 latest = versionNumber(QLatin1String(LatestVersion));
    if (expectedVersionNum != latest) {
        fail(QStringLiteral("release_mismatch"), QStringLiteral("the offered release is %1, not %2")
                                                     .arg(latest)
                                                     .arg(expectedVersionNum));
        return {};
    }
    if (versionNumber(guiVersion) >= latest) {
        fail(QStringLiteral("no_update_available"), QStringLiteral("Tovra is up to date"));
        return {};
    }
    // Downloads wait their turn for a moment, as the daemon runs one job at a time.
    setState(QStringLiteral("queued"));
    m_timer.start(PhaseMs / 2);
    return {};
}

bool UpdateStore::running() const
{
    static const QStringList states{QStringLiteral("queued"), QStringLiteral("checking"),
                                    QStringLiteral("downloading"), QStringLiteral("retrying"),
                                    QStringLiteral("verifying")};
    return states.contains(m_state);
}

void UpdateStore::cancel()
{
    if (!running())
        return;
    setState(QStringLiteral("canceling"));
    m_timer.start(PhaseMs / 2);
}

void UpdateStore::setState(const QString &state)
{
    m_state = state;
    m_updatedAt = QDateTime::currentDateTimeUtc();
}

void UpdateStore::fail(const QString &code, const QString &message)
{
    m_errorCode = code;
    m_errorMessage = message;
    setState(QStringLiteral("failed"));
}

void UpdateStore::advance()
{
    if (m_state == QLatin1String("canceling")) {
        QFile::remove(localPath());
        m_bytesDownloaded = 0;
        setState(QStringLiteral("canceled"));
        return;
    }
    if (m_state == QLatin1String("queued")) {
        setState(QStringLiteral("checking"));
        m_timer.start(PhaseMs);
        return;
    }
    if (m_state == QLatin1String("checking") || m_state == QLatin1String("retrying")) {
        m_errorMessage.clear();
        setState(QStringLiteral("downloading"));
        m_timer.start(StepMs);
        return;
    }
    if (m_state == QLatin1String("downloading") && m_flakyNetwork && !m_retried &&
        m_bytesDownloaded * 2 >= ArtifactBytes) {
        m_retried = true;
        m_errorMessage = QStringLiteral("connection reset by peer");
        setState(QStringLiteral("retrying"));
        m_timer.start(PhaseMs * 3);
        return;
    }
    if (m_state == QLatin1String("downloading")) {
        QFile file(localPath());
        if (!file.open(QIODevice::Append)) {
            fail(QStringLiteral("write_failed"), file.errorString());
            return;
        }
        const qint64 step = ArtifactBytes / DownloadSteps + 1;
        const QByteArray piece = m_artifact.mid(m_bytesDownloaded, step);
        file.write(piece);
        m_bytesDownloaded += piece.size();
        setState(m_bytesDownloaded >= ArtifactBytes ? QStringLiteral("verifying")
                                                    : QStringLiteral("downloading"));
        m_timer.start(m_state == QLatin1String("verifying") ? PhaseMs : StepMs);
        return;
    }
    if (m_state == QLatin1String("verifying")) {
        QFile file(localPath());
        QCryptographicHash hash(QCryptographicHash::Sha256);
        if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file) ||
            hash.result().toHex() != m_artifactSha256) {
            fail(QStringLiteral("integrity_check_failed"),
                 QStringLiteral("the downloaded file does not match its SHA-256"));
            return;
        }
        setState(QStringLiteral("ready"));
    }
}

QJsonObject UpdateStore::downloadJson() const
{
    const bool started = m_state != QLatin1String("idle");
    return {
        {QStringLiteral("state"), m_state},
        {QStringLiteral("current_version"), m_currentVersion},
        {QStringLiteral("version_code"), started ? QLatin1String(LatestVersion) : QString()},
        {QStringLiteral("version_num"), started ? versionNumber(QLatin1String(LatestVersion)) : 0},
        {QStringLiteral("bytes_downloaded"), m_bytesDownloaded},
        {QStringLiteral("bytes_total"), started ? ArtifactBytes : 0},
        {QStringLiteral("egress"), m_egress},
        {QStringLiteral("local_path"), m_state == QLatin1String("ready") ? localPath() : QString()},
        {QStringLiteral("error_code"), m_errorCode},
        {QStringLiteral("error_message"), m_errorMessage},
        {QStringLiteral("started_at"),
         m_startedAt.isValid() ? m_startedAt.toString(Qt::ISODate) : QString()},
        {QStringLiteral("updated_at"),
         m_updatedAt.isValid() ? m_updatedAt.toString(Qt::ISODate) : QString()}};
}
