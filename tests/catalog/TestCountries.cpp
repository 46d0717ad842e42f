#include "Countries.h"
#include "TranslationManager.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QPixmapCache>
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
        QTest::addRow("plain") << QStringLiteral("us") << QStringLiteral("United States");
        QTest::addRow("blanks and capitals")
            << QStringLiteral("  US\t") << QStringLiteral("United States");
        QTest::addRow("kept one letter short")
            << QStringLiteral("ax") << QStringLiteral("Land Islands");
        QTest::addRow("odd capital")
            << QStringLiteral("kp") << QStringLiteral("Korea, Democratic People'S Republic of");
        QTest::addRow("gb is the kingdom")
            << QStringLiteral("GB") << QStringLiteral("United Kingdom");
        QTest::addRow("uk is no code") << QStringLiteral("uk") << QStringLiteral("UK");
        QTest::addRow("unknown shows upper-cased")
            << QStringLiteral(" zz ") << QStringLiteral("ZZ");
        QTest::addRow("blank gives the trimmed input") << QStringLiteral("   ") << QString();
        QTest::addRow("empty") << QString() << QString();
    }

    void names()
    {
        QFETCH(QString, code);
        QFETCH(QString, name);
        QCOMPARE(countryName(code), name);
    }

    void tableOrder()
    {
        const QStringList codes = countryCodes();
        QCOMPARE(codes.size(), 233);
        QCOMPARE(codes.mid(0, 4), QStringList({QStringLiteral("af"), QStringLiteral("ax"),
                                               QStringLiteral("al"), QStringLiteral("dz")}));
        QCOMPARE(codes.mid(230),
                 QStringList({QStringLiteral("ye"), QStringLiteral("zm"), QStringLiteral("zw")}));
        for (const char *absent : {"uk", "cw", "bl", "xk"})
            QVERIFY2(!codes.contains(QLatin1String(absent)), absent);
        QCOMPARE(QSet<QString>(codes.begin(), codes.end()).size(), 233);
    }

    void continentNames_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        QTest::addRow("english") << u"en"_s << u" Europe "_s << u"Europe"_s;
        QTest::addRow("german") << u"de"_s << u"North America"_s << u"Nordamerika"_s;
        QTest::addRow("any case") << u"ru"_s << u"europe"_s << u"Европа"_s;
        QTest::addRow("right to left") << u"ar"_s << u"Asia"_s << u"آسيا"_s;
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
        QTest::addRow("48 pixels for dense screens")
            << QStringLiteral("de") << QString() << 0.0 << 2.0 << QSize(24, 16);
        QTest::addRow("trimmed and lower-cased")
            << QStringLiteral(" DE ") << QStringLiteral("de") << 0.0 << 2.0 << QSize(24, 16);
        QTest::addRow("24 pixels stay at 1.0")
            << QStringLiteral("qq") << QString() << 0.0 << 1.0 << QSize(24, 16);
        QTest::addRow("unknown code falls back")
            << QStringLiteral("zz") << QStringLiteral("unknown") << 0.0 << 2.0 << QSize(24, 16);
        QTest::addRow("no code, no flag")
            << QStringLiteral("  ") << QString() << 1.0 << 0.0 << QSize();
        QTest::addRow("made for a plain screen")
            << QStringLiteral("de") << QString() << 1.0 << 1.0 << QSize(24, 16);
        QTest::addRow("made for a 1.25 screen")
            << QStringLiteral("de") << QString() << 1.25 << 1.25 << QSize(24, 16);
        QTest::addRow("2x is the resource itself")
            << QStringLiteral("de") << QStringLiteral("de") << 2.0 << 2.0 << QSize(24, 16);
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
        const qint64 first = countryFlag(QStringLiteral("jp")).cacheKey();
        QCOMPARE(countryFlag(QStringLiteral("jp")).cacheKey(), first);
        QPixmap cached;
        QVERIFY(QPixmapCache::find(QStringLiteral("tovra-flag:jp"), &cached));
        const qint64 scaled = countryFlag(QStringLiteral("jp"), 1.5).cacheKey();
        clearFlagCache();
        QVERIFY(!QPixmapCache::find(QStringLiteral("tovra-flag:jp"), &cached));
        QVERIFY(countryFlag(QStringLiteral("jp"), 1.5).cacheKey() != scaled);
        const QPixmap again = countryFlag(QStringLiteral("jp"));
        QVERIFY(!again.isNull());
        QVERIFY(again.cacheKey() != first);
    }
};

QTEST_MAIN(TestCountries)
#include "TestCountries.moc"
