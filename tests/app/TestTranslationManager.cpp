#include "TranslationManager.h"

#include <QCoreApplication>
#include <QTest>

class TestTranslationManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalize_data();
    void normalize();
    void layoutDirection_data();
    void layoutDirection();
    void apply_data();
    void apply();
    void applyReplacesEarlierTranslation();
    void systemLanguageIsNormalized();
};

void TestTranslationManager::normalize_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("expected");
    QTest::addRow("zh_CN") << "zh_CN"
                           << "zh-Hans";
    QTest::addRow("ZH-cn") << "ZH-cn"
                           << "zh-Hans";
    QTest::addRow("zh-Hans-CN") << "zh-Hans-CN"
                                << "zh-Hans";
    QTest::addRow("zh alone") << "zh"
                              << "zh-Hans";
    QTest::addRow("zh-SG") << "zh-sg"
                           << "zh-Hans";
    QTest::addRow("zh_TW") << "zh_TW"
                           << "zh-Hant";
    QTest::addRow("zh-hant-tw") << "zh-hant-tw"
                                << "zh-Hant";
    QTest::addRow("zh-hant script") << "ZH-HANT"
                                    << "zh-Hant";
    QTest::addRow("zh-HK regional") << "zh_hk"
                                    << "zh-HK";
    QTest::addRow("pt_br") << "pt_br"
                           << "pt-BR";
    QTest::addRow("pt-PT") << "PT-pt"
                           << "pt-PT";
    QTest::addRow("de-DE drops region") << "de-DE"
                                        << "de";
    QTest::addRow("de-CH keeps region") << "de_ch"
                                        << "de-CH";
    QTest::addRow("es-419 stays") << "es-419"
                                  << "es-419";
    QTest::addRow("en-us") << "en-us"
                           << "en-US";
    QTest::addRow("fil base") << "FIL-ph"
                              << "fil";
    QTest::addRow("blanks and underscores") << "  fr__CA  "
                                            << "fr-CA";
    QTest::addRow("posix locale name") << "de_DE.UTF-8"
                                       << "de";
    QTest::addRow("locale modifier") << "ca_ES@valencia"
                                     << "ca";
    QTest::addRow("unknown language kept cased") << "xx-yy"
                                                 << "xx-YY";
    QTest::addRow("unlisted region of unlisted language") << "ur_pk"
                                                          << "ur-PK";
    QTest::addRow("empty") << ""
                           << "";
    QTest::addRow("only separators") << " -_- "
                                     << "";
}

void TestTranslationManager::normalize()
{
    QFETCH(QString, tag);
    QFETCH(QString, expected);
    QCOMPARE(TranslationManager::normalize(tag), expected);
}

void TestTranslationManager::layoutDirection_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<Qt::LayoutDirection>("expected");
    QTest::addRow("fa-IR") << "fa-IR" << Qt::RightToLeft;
    QTest::addRow("ar") << "ar" << Qt::RightToLeft;
    QTest::addRow("he upper") << "HE-il" << Qt::RightToLeft;
    QTest::addRow("ur") << "ur" << Qt::RightToLeft;
    QTest::addRow("de") << "de" << Qt::LeftToRight;
    QTest::addRow("zh-Hant") << "zh-Hant" << Qt::LeftToRight;
    QTest::addRow("empty") << "" << Qt::LeftToRight;
}

void TestTranslationManager::layoutDirection()
{
    QFETCH(QString, tag);
    QFETCH(Qt::LayoutDirection, expected);
    QCOMPARE(TranslationManager::layoutDirection(tag), expected);
}

void TestTranslationManager::apply_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translated");
    QTest::addRow("en-GB needs no file") << "en-GB" << true << "en-GB"
                                         << "ModePage"
                                         << "Auto"
                                         << "Auto";
    QTest::addRow("empty means default") << "" << true << "en-US"
                                         << "ModePage"
                                         << "Auto"
                                         << "Auto";
    QTest::addRow("de loads") << "de_DE" << true << "de"
                              << "GuiAutostart"
                              << "Could not update Tovra login startup."
                              << QString::fromUtf8("Der Tovra-Anmeldestart konnte nicht "
                                                   "aktualisiert werden.");
    QTest::addRow("zh_CN loads the Hans file") << "zh_CN" << true << "zh-Hans"
                                               << "ModePage"
                                               << "Auto" << QString::fromUtf8("自动");
    QTest::addRow("zh-TW loads the Hant file") << "zh-TW" << true << "zh-Hant"
                                               << "KillSwitchConfirm"
                                               << "Off" << QString::fromUtf8("關");
    QTest::addRow("pt_BR") << "pt_br" << true << "pt-BR"
                           << "KillSwitchConfirm"
                           << "On"
                           << "Ativado";
    QTest::addRow("listed but not shipped falls back") << "sw" << false << "en-US"
                                                       << "ModePage"
                                                       << "Auto"
                                                       << "Auto";
    QTest::addRow("unknown falls back") << "xx" << false << "en-US"
                                        << "ModePage"
                                        << "Auto"
                                        << "Auto";
}

void TestTranslationManager::apply()
{
    QFETCH(QString, tag);
    QFETCH(bool, ok);
    QFETCH(QString, current);
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(QString, translated);

    TranslationManager manager;
    QCOMPARE(manager.apply(tag), ok);
    QCOMPARE(manager.currentLanguage(), current);
    QCOMPARE(QCoreApplication::translate(context.toUtf8().constData(), source.toUtf8().constData()),
             translated);
}

void TestTranslationManager::applyReplacesEarlierTranslation()
{
    TranslationManager manager;
    QCOMPARE(manager.currentLanguage(), QStringLiteral("en-US"));
    QVERIFY(manager.apply(QStringLiteral("de")));
    QCOMPARE(QCoreApplication::translate("ModePage", "Auto"), QStringLiteral("Automatisch"));
    QVERIFY(manager.apply(QStringLiteral("fr")));
    QCOMPARE(QCoreApplication::translate("ModePage", "Auto"), QStringLiteral("Automatique"));
    // Going back to English must not leave the French catalogue installed.
    QVERIFY(manager.apply(QStringLiteral("en")));
    QCOMPARE(QCoreApplication::translate("ModePage", "Auto"), QStringLiteral("Auto"));
    QVERIFY(manager.apply(QStringLiteral("de")));
    QVERIFY(!manager.apply(QStringLiteral("sw")));
    QCOMPARE(QCoreApplication::translate("ModePage", "Auto"), QStringLiteral("Auto"));
}

void TestTranslationManager::systemLanguageIsNormalized()
{
    // The suite runs with LANG=C.UTF-8, which names no language: the default is reported.
    const QString tag = TranslationManager::systemLanguage();
    QCOMPARE(tag, TranslationManager::normalize(tag));
    QVERIFY(!tag.isEmpty());
}

QTEST_GUILESS_MAIN(TestTranslationManager)
#include "TestTranslationManager.moc"
