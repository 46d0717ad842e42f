#include "GuiPreferences.h"

#include "TempXdgDirs.h"

#include <QDir>
#include <QSettings>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Writes the file the way a hand edit or an older version would.
void writeRaw(const QString &key, const QVariant &value)
{
    QSettings raw(QSettings::IniFormat, QSettings::UserScope, u"Tovra"_s, u"TovraVPN"_s);
    raw.setValue(key, value);
    raw.sync();
    QCOMPARE(raw.status(), QSettings::NoError);
}

} // namespace

class TestGuiPreferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dirs = std::make_unique<TempXdgDirs>(); }
    void cleanup() { m_dirs.reset(); }

    void writesReachTheFileAtOnce()
    {
        GuiPreferences preferences;
        QCOMPARE(preferences.fileName(), m_dirs->configHome() + u"/Tovra/TovraVPN.ini"_s);
        preferences.setShowOnLaunch(false);
        preferences.setLaunchAtLogin(true);
        preferences.setAppearance(u"Dark"_s);
        preferences.setRecentNodes({{u"n1"_s, u"Tokyo 1"_s, u"jp"_s}});

        // A second reader sees the values without any further sync from the writer.
        QSettings raw(preferences.fileName(), QSettings::IniFormat);
        QCOMPARE(raw.value(u"window/showOnLaunch"_s).toString(), u"false"_s);
        QCOMPARE(raw.value(u"window/launchAtLogin"_s).toString(), u"true"_s);
        QCOMPARE(raw.value(u"appearance"_s).toString(), u"dark"_s);
        QCOMPARE(raw.beginReadArray(u"vpn/recentNodes"_s), 1);
        raw.setArrayIndex(0);
        QCOMPARE(raw.value(u"id"_s).toString(), u"n1"_s);
        QCOMPARE(raw.value(u"label"_s).toString(), u"Tokyo 1"_s);
        QCOMPARE(raw.value(u"flagCode"_s).toString(), u"jp"_s);
        QCOMPARE(GuiPreferences().showOnLaunch(), false);
    }

    void lastLanguage_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("stored"); // empty: the key is removed
        QTest::addRow("normalised") << u" zh_CN "_s << u"zh-Hans"_s;
        QTest::addRow("blank removes") << u"   "_s << u""_s;
    }

    void lastLanguage()
    {
        QFETCH(QString, written);
        QFETCH(QString, stored);
        GuiPreferences preferences;
        preferences.setLastEffectiveLanguage(u"de"_s);
        preferences.setLastEffectiveLanguage(written);
        QCOMPARE(preferences.lastEffectiveLanguage(), stored);
        QSettings raw(preferences.fileName(), QSettings::IniFormat);
        QCOMPARE(raw.contains(u"language/lastEffective"_s), !stored.isEmpty());
    }

    void updateBookkeeping_data()
    {
        QTest::addColumn<QString>("writtenFor");
        QTest::addColumn<QString>("readFor");
        QTest::addColumn<bool>("kept");
        QTest::addRow("same version") << u"1.2.3+4"_s << u"1.2.3+4"_s << true;
        QTest::addRow("after an upgrade") << u"1.2.3+4"_s << u"1.2.4+1"_s << false;
    }

    void updateBookkeeping()
    {
        QFETCH(QString, writtenFor);
        QFETCH(QString, readFor);
        QFETCH(bool, kept);
        const GuiUpdateBookkeeping written{1700000000, 1700000100, 1700000200, 10203, true};
        GuiPreferences().setUpdateBookkeeping(writtenFor, written);
        GuiPreferences preferences;
        QCOMPARE(preferences.updateBookkeeping(readFor), kept ? written : GuiUpdateBookkeeping());
        QSettings raw(preferences.fileName(), QSettings::IniFormat);
        QCOMPARE(raw.value(u"update/currentVersion"_s).toString(), writtenFor.trimmed());
        QCOMPARE(raw.value(u"update/lastNotifiedVersionNum"_s).toLongLong(), 10203);
    }

    void handEditedValues_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("showOnLaunch");
        QTest::addColumn<qint64>("lastAttemptAt");
        QTest::addColumn<QString>("appearance");
        const QString show = u"window/showOnLaunch"_s;
        const QString attempt = u"update/lastAttemptAt"_s;
        const QString system = u"system"_s;
        QTest::addRow("typo keeps the default") << show << u"ture"_s << true << qint64(0) << system;
        QTest::addRow("zero is false") << show << u"0"_s << false << qint64(0) << system;
        QTest::addRow("number as text") << attempt << u"42"_s << true << qint64(42) << system;
        QTest::addRow("appearance with blanks and capitals")
            << u"appearance"_s << u"  Dark "_s << true << qint64(0) << u"dark"_s;
        QTest::addRow("unknown appearance")
            << u"appearance"_s << u"blue"_s << true << qint64(0) << system;
    }

    void handEditedValues()
    {
        QFETCH(QString, key);
        QFETCH(QString, text);
        writeRaw(u"update/currentVersion"_s, u"9.9.9+9"_s);
        writeRaw(key, text);
        GuiPreferences preferences;
        QTEST(preferences.showOnLaunch(), "showOnLaunch");
        QTEST(preferences.updateBookkeeping(u"9.9.9+9"_s).lastAttemptAt, "lastAttemptAt");
        QTEST(preferences.appearance(), "appearance");
    }

    void failedSyncWarnsAndKeepsValue()
    {
        GuiPreferences preferences;
        // A directory where the file belongs makes every save fail, even for root.
        QVERIFY(QDir().mkpath(preferences.fileName()));
        QTest::ignoreMessage(QtWarningMsg,
                             "GuiPreferences: failed to persist settings, status AccessError");
        preferences.setLaunchAtLogin(true);
        QCOMPARE(preferences.launchAtLogin(), true);
    }

private:
    std::unique_ptr<TempXdgDirs> m_dirs;
};

QTEST_GUILESS_MAIN(TestGuiPreferences)
#include "TestGuiPreferences.moc"
