#include "Countries.h"
#include "TranslationManager.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QTest>

using namespace Qt::StringLiterals;

class TestCountries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("name");
        QTest::addRow("gb is the kingdom") << u"GB"_s << u"United Kingdom"_s;
        QTest::addRow("uk is no code") << u"uk"_s << u"UK"_s;
        QTest::addRow("unknown shows upper-cased") << u" zz "_s << u"ZZ"_s;
        QTest::addRow("blank gives the trimmed input") << u"   "_s << QString();
    }

    void names()
    {
        QFETCH(QString, code);
        QFETCH(QString, name);
        QCOMPARE(countryName(code), name);
    }

    void continentNames_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        QTest::addRow("any case, blanks") << u"ru"_s << u" europe "_s << u"Европа"_s;
        QTest::addRow("not a continent") << u"de"_s << u"Benelux"_s << u"Benelux"_s;
        QTest::addRow("a country is not translated here")
            << u"de"_s << u"Germany"_s << u"Germany"_s;
    }

    void continentNames()
    {
        QFETCH(QString, language);
        QFETCH(QString, name);
        QFETCH(QString, shown);
        TranslationManager translations;
        QVERIFY(translations.apply(language));
        QCOMPARE(continentName(name), shown);
    }

    void flags_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("sameAs"); // a code whose flag is the same picture, or empty
        QTest::addColumn<qreal>("screen");   // the device pixel ratio asked for; 0: none given
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<QSize>("logical");
        QTest::addRow("trimmed and lower-cased")
            << u" DE "_s << u"de"_s << 0.0 << 2.0 << QSize(24, 16);
        QTest::addRow("24 pixels stay at 1.0")
            << u"qq"_s << QString() << 0.0 << 1.0 << QSize(24, 16);
        QTest::addRow("unknown code falls back")
            << u"zz"_s << u"unknown"_s << 0.0 << 2.0 << QSize(24, 16);
        QTest::addRow("no code, no flag") << u"  "_s << QString() << 1.0 << 0.0 << QSize();
        QTest::addRow("made for a 1.25 screen")
            << u"de"_s << QString() << 1.25 << 1.25 << QSize(24, 16);
        QTest::addRow("2x is the resource itself")
            << u"de"_s << u"de"_s << 2.0 << 2.0 << QSize(24, 16);
    }

    void flags()
    {
        QFETCH(QString, code);
        QFETCH(QString, sameAs);
        QFETCH(qreal, screen);
        QFETCH(qreal, ratio);
        QFETCH(QSize, logical);
        const QPixmap flag = screen > 0 ? countryFlag(code, screen) : countryFlag(code);
        if (logical.isEmpty()) {
            QVERIFY(flag.isNull());
            return;
        }

        QCOMPARE(flag.devicePixelRatio(), ratio);
        QCOMPARE(flag.size(), (QSizeF(logical) * ratio).toSize()); // whole device pixels
        QCOMPARE(flag.deviceIndependentSize().toSize(), logical);
        if (!sameAs.isEmpty())
            QCOMPARE(flag.cacheKey(), countryFlag(sameAs).cacheKey());
    }

    void flagCacheClears()
    {
        const qint64 first = countryFlag(u"jp"_s).cacheKey();
        const qint64 scaled = countryFlag(u"jp"_s, 1.5).cacheKey();
        QCOMPARE(countryFlag(u"jp"_s).cacheKey(), first);
        clearFlagCache();
        QVERIFY(countryFlag(u"jp"_s, 1.5).cacheKey() != scaled);
        const QPixmap again = countryFlag(u"jp"_s);
        QVERIFY(!again.isNull() && again.cacheKey() != first);
    }
};

QTEST_MAIN(TestCountries)
#include "TestCountries.moc"
