#include "KillSwitchState.h"

#include "TranslationManager.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

KillSwitchInfo record(bool known, bool enabled, const QString &mode = {}, const QString &guard = {})
{
    KillSwitchInfo result;
    result.valid = known;
    result.enabled = enabled;
    result.mode = mode;
    result.guard = guard;
    return result;
}

} // namespace

class TestKillSwitchState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void word_data()
    {
        QTest::addColumn<KillSwitchInfo>("record");
        QTest::addColumn<QString>("word");
        const QString lockdown = u"lockdown"_s;
        const QString active = u"active"_s;
        QTest::addRow("no record") << record(false, true, lockdown, active) << u"Unavailable"_s;
        QTest::addRow("lockdown active, enabled")
            << record(true, true, lockdown, active) << u"Lockdown"_s;
        QTest::addRow("lockdown, empty state")
            << record(true, true, lockdown) << u"Lockdown unavailable"_s;
        QTest::addRow("lockdown, Active capital")
            << record(true, true, lockdown, u"Active"_s) << u"Lockdown unavailable"_s;
        QTest::addRow("Lockdown capital is ordinary")
            << record(true, true, u"Lockdown"_s, active) << u"On"_s;
        QTest::addRow("lockdown with blank")
            << record(true, false, u"lockdown "_s, active) << u"Off"_s;
        QTest::addRow("on") << record(true, true, u"auto"_s) << u"On"_s;
        QTest::addRow("off") << record(true, false, {}, active) << u"Off"_s;
    }

    void word()
    {
        QFETCH(KillSwitchInfo, record);
        QFETCH(QString, word);
        QCOMPARE(killSwitchStateText(record, "TrayMenuText"), word);
    }

    void translatedWithFallbackContext()
    {
        TranslationManager translations;
        QVERIFY(translations.apply(u"de"_s));
        // The page's context has no entry of its own: the shared wording is used.
        QCOMPARE(killSwitchStateText(record(true, true), "VpnPage"), u"Ein"_s);
        QCOMPARE(killSwitchStateText(KillSwitchInfo(), nullptr), u"Nicht verfügbar"_s);
    }
};

QTEST_GUILESS_MAIN(TestKillSwitchState)
#include "TestKillSwitchState.moc"
