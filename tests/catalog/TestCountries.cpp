#include "Countries.h"

#include <QGuiApplication>
#include <QTest>

class TestCountries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void tableOrder();
};

void TestCountries::names_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("name");
    QTest::addRow("plain") << QStringLiteral("us") << QStringLiteral("United States");
    QTest::addRow("blanks and capitals")
        << QStringLiteral("  US\t") << QStringLiteral("United States");
    QTest::addRow("kept one letter short")
        << QStringLiteral("ax") << QStringLiteral("Land Islands");
    QTest::addRow("odd capital") << QStringLiteral("kp")
                                 << QStringLiteral("Korea, Democratic People'S Republic of");
    QTest::addRow("gb is the kingdom") << QStringLiteral("GB") << QStringLiteral("United Kingdom");
    QTest::addRow("uk is no code") << QStringLiteral("uk") << QStringLiteral("UK");
    QTest::addRow("unknown shows upper-cased") << QStringLiteral(" zz ") << QStringLiteral("ZZ");
    QTest::addRow("blank gives the trimmed input") << QStringLiteral("   ") << QString();
    QTest::addRow("empty") << QString() << QString();
}

void TestCountries::names()
{
    QFETCH(QString, code);
    QFETCH(QString, name);
    QCOMPARE(countryName(code), name);
}

void TestCountries::tableOrder()
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

QTEST_MAIN(TestCountries)
#include "TestCountries.moc"
