#include "TranslationManager.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString locations()
{
    return QCoreApplication::translate("NavigationSidebar", "Locations");
}

} // namespace

class TestTranslationManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalize_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("expected");
        QTest::addRow("zh_CN") << u"zh_CN"_s << u"zh-Hans"_s;
        QTest::addRow("zh_TW") << u"zh_TW"_s << u"zh-Hant"_s;
        QTest::addRow("zh-hant script") << u"ZH-HANT"_s << u"zh-Hant"_s;
        QTest::addRow("zh-HK regional") << u"zh_hk"_s << u"zh-HK"_s;
        QTest::addRow("de-CH keeps region") << u"de_ch"_s << u"de-CH"_s;
        QTest::addRow("es-419 stays") << u"es-419"_s << u"es-419"_s;
        QTest::addRow("blanks and underscores") << u"  fr__CA  "_s << u"fr-CA"_s;
        QTest::addRow("posix locale name") << u"de_DE.UTF-8"_s << u"de"_s;
        QTest::addRow("locale modifier") << u"ca_ES@valencia"_s << u"ca"_s;
        QTest::addRow("unknown language kept cased") << u"xx-yy"_s << u"xx-YY"_s;
        QTest::addRow("only separators") << u" -_- "_s << u""_s;
    }

    void normalize()
    {
        QFETCH(QString, tag);
        QFETCH(QString, expected);
        QCOMPARE(TranslationManager::normalize(tag), expected);
    }

    void layoutDirection_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<Qt::LayoutDirection>("expected");
        QTest::addRow("fa-IR") << u"fa-IR"_s << Qt::RightToLeft;
        QTest::addRow("de") << u"de"_s << Qt::LeftToRight;
    }

    void layoutDirection()
    {
        QFETCH(QString, tag);
        QFETCH(Qt::LayoutDirection, expected);
        QCOMPARE(TranslationManager::layoutDirection(tag), expected);
    }

    void apply_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("message"); // context:source
        QTest::addColumn<QString>("translated");
        const QString autoText = u"ModePage:Auto"_s;
        QTest::addRow("en-GB needs no file")
            << u"en-GB"_s << true << u"en-GB"_s << autoText << u"Auto"_s;
        QTest::addRow("empty means default")
            << u""_s << true << u"en-US"_s << autoText << u"Auto"_s;
        QTest::addRow("de loads") << u"de_DE"_s << true << u"de"_s
                                  << u"GuiAutostart:Could not update Tovra login startup."_s
                                  << u"Der Tovra-Autostart konnte nicht aktualisiert werden."_s;
        QTest::addRow("zh_CN loads the Hans file")
            << u"zh_CN"_s << true << u"zh-Hans"_s << autoText << u"自动"_s;
        QTest::addRow("zh-TW loads the Hant file")
            << u"zh-TW"_s << true << u"zh-Hant"_s << u"KillSwitchConfirm:Off"_s << u"已關閉"_s;
        QTest::addRow("listed but not shipped falls back")
            << u"sw"_s << false << u"en-US"_s << autoText << u"Auto"_s;
    }

    void apply()
    {
        QFETCH(QString, tag);
        QFETCH(bool, ok);
        QFETCH(QString, current);
        QFETCH(QString, message);
        QFETCH(QString, translated);
        TranslationManager manager;
        QCOMPARE(manager.apply(tag), ok);
        QCOMPARE(manager.currentLanguage(), current);
        QCOMPARE(QCoreApplication::translate(qPrintable(message.section(u':', 0, 0)),
                                             qPrintable(message.section(u':', 1))),
                 translated);
    }

    void applyReplacesEarlierTranslation()
    {
        // The suite runs with LANG=C.UTF-8, which names no language: English is the default.
        QCOMPARE(TranslationManager::systemLanguage(), u"en-US"_s);
        TranslationManager manager;
        QCOMPARE(manager.currentLanguage(), u"en-US"_s);
        QVERIFY(manager.apply(u"de"_s));
        QCOMPARE(locations(), u"Standorte"_s);
        QVERIFY(manager.apply(u"fr"_s));
        QCOMPARE(locations(), u"Emplacements"_s);
        // Going back to English must not leave the French catalogue installed.
        QVERIFY(manager.apply(u"en"_s));
        QCOMPARE(locations(), u"Locations"_s);
        QVERIFY(manager.apply(u"de"_s));
        QVERIFY(!manager.apply(u"sw"_s));
        QCOMPARE(locations(), u"Locations"_s);
    }
};

QTEST_GUILESS_MAIN(TestTranslationManager)
#include "TestTranslationManager.moc"
