#include "KillSwitchState.h"

#include "TranslationManager.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestKillSwitchState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void word_data();
    void word();
    void translatedWithFallbackContext();
};

void TestKillSwitchState::word_data()
{
    QTest::addColumn<bool>("known");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("guard");
    QTest::addColumn<QString>("word");
    QTest::addRow("no record") << false << true << "lockdown"
                               << "active"
                               << "Unavailable";
    QTest::addRow("lockdown active, disabled") << true << false << "lockdown"
                                               << "active"
                                               << "Lockdown";
    QTest::addRow("lockdown active, enabled") << true << true << "lockdown"
                                              << "active"
                                              << "Lockdown";
    QTest::addRow("lockdown, empty state") << true << true << "lockdown"
                                           << ""
                                           << "Lockdown unavailable";
    QTest::addRow("lockdown, Active capital") << true << true << "lockdown"
                                              << "Active"
                                              << "Lockdown unavailable";
    QTest::addRow("Lockdown capital is ordinary") << true << true << "Lockdown"
                                                  << "active"
                                                  << "On";
    QTest::addRow("lockdown with blank") << true << false << "lockdown "
                                         << "active"
                                         << "Off";
    QTest::addRow("on") << true << true << "auto"
                        << ""
                        << "On";
    QTest::addRow("off") << true << false << ""
                         << "active"
                         << "Off";
}

void TestKillSwitchState::word()
{
    QFETCH(bool, known);
    QFETCH(bool, enabled);
    QFETCH(QString, mode);
    QFETCH(QString, guard);
    QFETCH(QString, word);
    KillSwitchInfo record;
    record.valid = known;
    record.enabled = enabled;
    record.mode = mode;
    record.guard = guard;
    QCOMPARE(killSwitchStateText(record, "TrayMenuText"), word);
}

void TestKillSwitchState::translatedWithFallbackContext()
{
    TranslationManager translations;
    QVERIFY(translations.apply(u"de"_s));
    KillSwitchInfo record;
    record.valid = true;
    record.enabled = true;
    // The caller's context has no entry of its own: the shared wording is used.
    QCOMPARE(killSwitchStateText(record, "TrayMenuText"), u"Ein"_s);
    QCOMPARE(killSwitchStateText(KillSwitchInfo(), nullptr), QString::fromUtf8("Nicht verfügbar"));
}

QTEST_GUILESS_MAIN(TestKillSwitchState)
#include "TestKillSwitchState.moc"
