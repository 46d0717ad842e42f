#include "GuiPreferences.h"

#include "TempXdgDirs.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

#include <memory>

class TestGuiPreferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fileLocation();
    void defaults();
    void writesReachTheFileAtOnce();
    void appearance_data();
    void appearance();
    void lastLanguage_data();
    void lastLanguage();
    void updateBookkeeping_data();
    void updateBookkeeping();
    void handEditedValues_data();
    void handEditedValues();
    void failedSyncWarnsAndKeepsValue();

private:
    void writeRaw(const QString &key, const QVariant &value);

    std::unique_ptr<TempXdgDirs> m_dirs;
};

void TestGuiPreferences::init()
{
    m_dirs = std::make_unique<TempXdgDirs>();
    QVERIFY(m_dirs->isValid());
}

void TestGuiPreferences::cleanup()
{
    m_dirs.reset();
}

void TestGuiPreferences::writeRaw(const QString &key, const QVariant &value)
{
    QSettings raw(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Tovra"),
                  QStringLiteral("TovraVPN"));
    raw.setValue(key, value);
    raw.sync();
    QCOMPARE(raw.status(), QSettings::NoError);
}

void TestGuiPreferences::fileLocation()
{
    GuiPreferences preferences;
    QCOMPARE(preferences.fileName(), m_dirs->configHome() + QStringLiteral("/Tovra/TovraVPN.ini"));
}

void TestGuiPreferences::defaults()
{
    GuiPreferences preferences;
    QCOMPARE(preferences.showOnLaunch(), true);
    QCOMPARE(preferences.launchAtLogin(), false);
    QCOMPARE(preferences.appearance(), QStringLiteral("system"));
    QCOMPARE(preferences.lastEffectiveLanguage(), QString());
    QCOMPARE(preferences.recentNodes(20), QList<RecentLocation>());
    QCOMPARE(preferences.recentSearches(), QStringList());
    QCOMPARE(preferences.recentNodesCleared(), false);
    QCOMPARE(preferences.updateBookkeeping(QStringLiteral(TOVRA_VERSION)), GuiUpdateBookkeeping());
}

void TestGuiPreferences::writesReachTheFileAtOnce()
{
    GuiPreferences preferences;
    preferences.setShowOnLaunch(false);
    preferences.setLaunchAtLogin(true);
    preferences.setAppearance(QStringLiteral("Dark"));
    preferences.setRecentNodes(
        {{QStringLiteral("n1"), QStringLiteral("Tokyo 1"), QStringLiteral("jp")}});

    // A second reader sees the values without any further sync from the writer.
    QSettings raw(preferences.fileName(), QSettings::IniFormat);
    QCOMPARE(raw.value(QStringLiteral("window/showOnLaunch")).toString(), QStringLiteral("false"));
    QCOMPARE(raw.value(QStringLiteral("window/launchAtLogin")).toString(), QStringLiteral("true"));
    QCOMPARE(raw.value(QStringLiteral("appearance")).toString(), QStringLiteral("dark"));
    QCOMPARE(raw.beginReadArray(QStringLiteral("vpn/recentNodes")), 1);
    raw.setArrayIndex(0);
    QCOMPARE(raw.value(QStringLiteral("id")).toString(), QStringLiteral("n1"));
    QCOMPARE(raw.value(QStringLiteral("label")).toString(), QStringLiteral("Tokyo 1"));
    QCOMPARE(raw.value(QStringLiteral("flagCode")).toString(), QStringLiteral("jp"));
    raw.endArray();

    GuiPreferences reopened;
    QCOMPARE(reopened.showOnLaunch(), false);
    QCOMPARE(reopened.launchAtLogin(), true);
}

void TestGuiPreferences::appearance_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("expected");
    QTest::addRow("Dark with blanks") << "  Dark "
                                      << "dark";
    QTest::addRow("LIGHT") << "LIGHT"
                           << "light";
    QTest::addRow("system") << "system"
                            << "system";
    QTest::addRow("blue") << "blue"
                          << "system";
    QTest::addRow("empty") << ""
                           << "system";
}

void TestGuiPreferences::appearance()
{
    QFETCH(QString, stored);
    QFETCH(QString, expected);
    writeRaw(QStringLiteral("appearance"), stored);
    GuiPreferences preferences;
    QCOMPARE(preferences.appearance(), expected);
}

void TestGuiPreferences::lastLanguage_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("keyPresent");
    QTest::addRow("normalised") << " zh_CN "
                                << "zh-Hans" << true;
    QTest::addRow("regional") << "pt_br"
                              << "pt-BR" << true;
    QTest::addRow("empty removes") << ""
                                   << "" << false;
    QTest::addRow("blank removes") << "   "
                                   << "" << false;
}

void TestGuiPreferences::lastLanguage()
{
    QFETCH(QString, written);
    QFETCH(QString, stored);
    QFETCH(bool, keyPresent);

    GuiPreferences preferences;
    preferences.setLastEffectiveLanguage(QStringLiteral("de"));
    preferences.setLastEffectiveLanguage(written);
    QCOMPARE(preferences.lastEffectiveLanguage(), stored);
    QSettings raw(preferences.fileName(), QSettings::IniFormat);
    QCOMPARE(raw.contains(QStringLiteral("language/lastEffective")), keyPresent);
}

void TestGuiPreferences::updateBookkeeping_data()
{
    QTest::addColumn<QString>("writtenFor");
    QTest::addColumn<QString>("readFor");
    QTest::addColumn<bool>("kept");
    QTest::addRow("same version") << "1.2.3+4"
                                  << "1.2.3+4" << true;
    QTest::addRow("same version, blanks") << " 1.2.3+4 "
                                          << "1.2.3+4" << true;
    QTest::addRow("after an upgrade") << "1.2.3+4"
                                      << "1.2.4+1" << false;
    QTest::addRow("new build number") << "1.2.3+4"
                                      << "1.2.3+5" << false;
}

void TestGuiPreferences::updateBookkeeping()
{
    QFETCH(QString, writtenFor);
    QFETCH(QString, readFor);
    QFETCH(bool, kept);

    const GuiUpdateBookkeeping written{1700000000, 1700000100, 1700000200, 10203, true};
    {
        GuiPreferences preferences;
        preferences.setUpdateBookkeeping(writtenFor, written);
    }
    GuiPreferences preferences;
    QCOMPARE(preferences.updateBookkeeping(readFor), kept ? written : GuiUpdateBookkeeping());

    QSettings raw(preferences.fileName(), QSettings::IniFormat);
    QCOMPARE(raw.value(QStringLiteral("update/currentVersion")).toString(), writtenFor.trimmed());
    QCOMPARE(raw.value(QStringLiteral("update/lastNotifiedVersionNum")).toLongLong(), 10203);
}

void TestGuiPreferences::handEditedValues_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("showOnLaunch");
    QTest::addColumn<qint64>("lastAttemptAt");
    QTest::addRow("typo keeps the default") << "window/showOnLaunch"
                                            << "ture" << true << qint64(0);
    QTest::addRow("zero is false") << "window/showOnLaunch"
                                   << "0" << false << qint64(0);
    QTest::addRow("number as text") << "update/lastAttemptAt"
                                    << "42" << true << qint64(42);
    QTest::addRow("garbage number") << "update/lastAttemptAt"
                                    << "soon" << true << qint64(0);
}

void TestGuiPreferences::handEditedValues()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QFETCH(bool, showOnLaunch);
    QFETCH(qint64, lastAttemptAt);

    writeRaw(QStringLiteral("update/currentVersion"), QStringLiteral("9.9.9+9"));
    writeRaw(key, text);
    GuiPreferences preferences;
    QCOMPARE(preferences.showOnLaunch(), showOnLaunch);
    QCOMPARE(preferences.updateBookkeeping(QStringLiteral("9.9.9+9")).lastAttemptAt, lastAttemptAt);
}

void TestGuiPreferences::failedSyncWarnsAndKeepsValue()
{
    GuiPreferences preferences;
    // A directory where the file belongs makes every save fail, even for root.
    QVERIFY(QDir().mkpath(preferences.fileName()));
    QTest::ignoreMessage(QtWarningMsg,
                         "GuiPreferences: failed to persist settings, status AccessError");
    preferences.setLaunchAtLogin(true);
    QCOMPARE(preferences.launchAtLogin(), true);
}

QTEST_GUILESS_MAIN(TestGuiPreferences)
#include "TestGuiPreferences.moc"
