#include "GuiPreferences.h"
#include "TempXdgDirs.h"
#include "UpdateNoticePolicy.h"

#include <QTest>

using Verdict = UpdateNoticePolicy::Verdict;
Q_DECLARE_METATYPE(Verdict)

namespace {

constexpr qint64 T = 1'800'000'000; // seconds since the epoch, an ordinary day
constexpr qint64 Day = UpdateNoticePolicy::kQuietSeconds;

} // namespace

// When an automatic check puts an offer in front of the user: the bookkeeping goes through the
// real preferences file, stored for one GUI version and read by another, at a given clock.
class TestUpdateNoticePolicy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verdict_data()
    {
        QTest::addColumn<QString>("storedFor"); // GUI version the bookkeeping was written by
        QTest::addColumn<qint64>("notifiedAt"); // 0: never
        QTest::addColumn<qint64>("notifiedVersion");
        QTest::addColumn<qint64>("muted"); // "Hide this update" up to this version
        QTest::addColumn<qint64>("offered");
        QTest::addColumn<bool>("forced");
        QTest::addColumn<bool>("userAsked");
        QTest::addColumn<qint64>("now");
        QTest::addColumn<Verdict>("expected");

        const QString v = QStringLiteral("0.1.0");
        QTest::addRow("same version a second short of a day")
            << v << T << 3000LL << 0LL << 3000LL << false << false << T + Day - 1
            << Verdict::ShownRecently;
        QTest::addRow("same version a day later")
            << v << T << 3000LL << 0LL << 3000LL << false << false << T + Day << Verdict::Show;
        QTest::addRow("newer version the same hour")
            << v << T << 3000LL << 0LL << 3001LL << false << false << T + 60 << Verdict::Show;
        QTest::addRow("clock set back before the last notice")
            << v << T << 3000LL << 0LL << 3000LL << false << false << T - 60 << Verdict::Show;
        QTest::addRow("hidden version a month later")
            << v << T << 3000LL << 3000LL << 3000LL << false << false << T + 30 * Day
            << Verdict::Muted;
        QTest::addRow("older than the hidden version")
            << v << 0LL << 0LL << 3000LL << 2999LL << false << false << T << Verdict::Muted;
        QTest::addRow("newer version breaks the mute")
            << v << T << 3000LL << 3000LL << 3001LL << false << false << T + 60 << Verdict::Show;
        QTest::addRow("required update ignores mute and day")
            << v << T << 3000LL << 3000LL << 3000LL << true << false << T + 60 << Verdict::Show;
        QTest::addRow("user asked ignores mute and day")
            << v << T << 3000LL << 3000LL << 3000LL << false << true << T + 60 << Verdict::Show;
        QTest::addRow("client upgrade forgets the mute and the notice")
            << "0.0.9" << T << 3000LL << 3000LL << 3000LL << false << false << T + 60
            << Verdict::Show;
    }

    void verdict()
    {
        QFETCH(QString, storedFor);
        QFETCH(qint64, notifiedAt);
        QFETCH(qint64, notifiedVersion);
        QFETCH(qint64, muted);
        QFETCH(qint64, offered);
        QFETCH(bool, forced);
        QFETCH(bool, userAsked);
        QFETCH(qint64, now);
        QFETCH(Verdict, expected);

        {
            GuiPreferences writer;
            GuiUpdateBookkeeping stored;
            stored.lastNotifiedAt = notifiedAt;
            stored.lastNotifiedVersionNum = notifiedVersion;
            stored.mutedVersionNum = muted;
            stored.forceUpgrade = true;
            writer.setUpdateBookkeeping(storedFor, stored);
        }
        GuiPreferences reader;
        const GuiUpdateBookkeeping read = reader.updateBookkeeping(QStringLiteral("0.1.0"));
        if (storedFor != QLatin1String("0.1.0"))
            QCOMPARE(read, GuiUpdateBookkeeping());
        QCOMPARE(UpdateNoticePolicy::decide(read, offered, forced, userAsked, now), expected);
    }

    void hidingTwiceKeepsTheNewerVersion()
    {
        GuiUpdateBookkeeping bookkeeping;
        UpdateNoticePolicy::mute(&bookkeeping, 3001);
        UpdateNoticePolicy::mute(&bookkeeping, 3000);
        QCOMPARE(bookkeeping.mutedVersionNum, 3001);
        UpdateNoticePolicy::recordShown(&bookkeeping, 3002, T);
        QCOMPARE(UpdateNoticePolicy::decide(bookkeeping, 3002, false, false, T + 1),
                 Verdict::ShownRecently);
    }

private:
    TempXdgDirs m_dirs;
};

QTEST_MAIN(TestUpdateNoticePolicy)
#include "TestUpdateNoticePolicy.moc"
