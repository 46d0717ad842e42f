#include "AppState.h"
#include "ControlMetaTypes.h"
#include "ModePage.h"
#include "ModeSegmentedBar.h"
#include "SplitRuleValidator.h"
#include "TovraSplitRulesEditorDialog.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace {

SplitRulesInfo rules(const QMap<QString, QStringList> &items)
{
    SplitRulesInfo info;
    info.valid = true;
    info.dir = u"/etc/tovra/rules"_s;
    info.rules = items;
    for (auto it = items.cbegin(); it != items.cend(); ++it)
        info.files.insert(it.key(), info.dir + u'/' + it.key() + u".txt"_s);
    return info;
}

const QMap<QString, QStringList> kDemoRules{{u"direct"_s, {u"example.cn"_s}},
                                            {u"proxy"_s, {}},
                                            {u"block"_s, {u"ads.example"_s, u"10.0.0.0/8"_s}}};

} // namespace

class TestSplitRulesEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void lines_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("rule");
        for (const char *line :
             {"example.org", "sub.example.co.uk", "*.example.net", ".cn", "xn--fiqs8s.example",
              "bücher.example", "_dmarc.example.org", "203.0.113.7", "0.0.0.0", "10.0.0.0/8",
              "192.168.1.0/24", "2001:db8::1", "::1", "2001:db8::/32", "  example.org  ",
              "example.org."})
            QTest::addRow("good %s", line) << QString::fromUtf8(line) << true;
        for (const char *line :
             {"example", "exa mple.org", "example..org", "-example.org", "example-.org",
              "http://example.org", "example.org/path", "example.org # note", "256.1.1.1", "10.1",
              "1.2.3.999", "10.0.0.0/33", "2001:db8::/129", "10.0.0.0/8/8", "fe80::1%eth0", "*",
              "*.", "a/b"})
            QTest::addRow("bad %s", line) << QString::fromUtf8(line) << false;
    }

    void lines()
    {
        QFETCH(QString, line);
        QFETCH(bool, rule);
        QCOMPARE(SplitRuleValidator::isRule(line), rule);
    }

    void badLinesAreListedAndNothingIsSent()
    {
        TovraSplitRulesEditorDialog dialog;
        dialog.setRules(rules(kDemoRules));
        dialog.show();
        QSignalSpy imports(&dialog, &TovraSplitRulesEditorDialog::importRequested);
        dialog.editor()->setPlainText(
            u"# work sites\nexample.org\n\nnot a domain\n10.0.0.0/99\n"_s);
        QTest::mouseClick(dialog.importButton(), Qt::LeftButton);
        QCOMPARE(imports.count(), 0);
        QVERIFY(dialog.problemsLabel()->isVisible());
        const QString listed = dialog.problemsLabel()->text();
        QVERIFY2(listed.contains(u"Line 4: \u201cnot a domain\u201d"_s), qPrintable(listed));
        QVERIFY2(listed.contains(u"Line 5: \u201c10.0.0.0/99\u201d"_s), qPrintable(listed));
        QVERIFY(!listed.contains(u"Line 2"_s));

        dialog.editor()->setPlainText(u"# work sites\nexample.org\n\n203.0.113.0/24"_s);
        QTest::mouseClick(dialog.importButton(), Qt::LeftButton);
        QVERIFY(!dialog.problemsLabel()->isVisible());
        QCOMPARE(imports.count(), 1);
        QCOMPARE(imports.at(0).at(0).toString(), u"direct"_s);
        QCOMPARE(imports.at(0).at(1).toString(), u"# work sites\nexample.org\n\n203.0.113.0/24"_s);
    }

    void manyBadLines()
    {
        QStringList lines;
        for (int i = 0; i < 60; ++i)
            lines.append(u"host%1.example.org"_s.arg(i));
        lines[41] = u"bad line one"_s;
        lines[58] = u"bad line two"_s;
        for (int i = 45; i < 55; ++i)
            lines[i] = u"nope"_s;
        TovraSplitRulesEditorDialog dialog;
        dialog.setRules(rules(kDemoRules));
        dialog.editor()->setPlainText(lines.join(u'\n'));
        QTRY_VERIFY(dialog.statusLabel()->text().startsWith(u"Rules: 60 \u00b7 Lines: 60"_s));
        QTest::mouseClick(dialog.importButton(), Qt::LeftButton);
        // The first bad lines, then how many more.
        const QString listed = dialog.problemsLabel()->text();
        QVERIFY(listed.contains(u"Line 42:"_s));
        QVERIFY(!listed.contains(u"Line 59:"_s));
        QVERIFY2(listed.contains(u"Bad lines in all: 12."_s), qPrintable(listed));
    }

    void kindsFromTheRecordAndEditsSurviveASwitch()
    {
        TovraSplitRulesEditorDialog dialog;
        QVERIFY(!dialog.importButton()->isEnabled());
        QMap<QString, QStringList> reported = kDemoRules;
        reported.insert(u"reject-ads"_s, {u"tracker.example"_s});
        dialog.setRules(rules(reported));
        // The known kinds first, in their order, then the others; unknown words as they are.
        QCOMPARE(dialog.kinds(),
                 (QStringList{u"direct"_s, u"proxy"_s, u"block"_s, u"reject-ads"_s}));
        QCOMPARE(dialog.kindBar()->segment(u"reject-ads"_s)->text(), u"reject-ads"_s);
        QCOMPARE(dialog.kindBar()->segment(u"block"_s)->text(), u"Block"_s);
        QCOMPARE(dialog.currentKind(), u"direct"_s);
        QCOMPARE(dialog.editor()->toPlainText(), u"example.cn\n"_s);

        dialog.editor()->setPlainText(u"example.cn\nmine.example\n"_s);
        QVERIFY(dialog.hasUnsavedEdits(u"direct"_s));
        // A poll that brings a new record leaves the text and the cursor where the user has them.
        QTextCursor cursor = dialog.editor()->textCursor();
        cursor.setPosition(14);
        dialog.editor()->setTextCursor(cursor);
        reported[u"block"_s].append(u"more.example"_s);
        dialog.setRules(rules(reported));
        QCOMPARE(dialog.editor()->textCursor().position(), 14);
        QTest::mouseClick(dialog.kindBar()->segment(u"block"_s), Qt::LeftButton);
        QCOMPARE(dialog.currentKind(), u"block"_s);
        QCOMPARE(dialog.editor()->toPlainText(), u"ads.example\n10.0.0.0/8\nmore.example\n"_s);
        // A fresh record (a poll, another import) does not overwrite the unsaved text.
        reported[u"direct"_s] = QStringList{u"example.cn"_s, u"other.example"_s};
        dialog.setRules(rules(reported));
        QTest::mouseClick(dialog.kindBar()->segment(u"direct"_s), Qt::LeftButton);
        QCOMPARE(dialog.editor()->toPlainText(), u"example.cn\nmine.example\n"_s);
        QVERIFY(dialog.statusLabel()->text().contains(u"not imported"_s));
        QVERIFY(dialog.statusLabel()->text().startsWith(u"Rules: 2 \u00b7 Lines: 2"_s));
        // Typing it back to what the daemon holds leaves nothing unsaved.
        dialog.editor()->setPlainText(u"example.cn\nother.example\n"_s);
        QVERIFY(!dialog.hasUnsavedEdits(u"direct"_s));
    }

    void importAndResult()
    {
        TovraSplitRulesEditorDialog dialog;
        QMap<QString, QStringList> reported = kDemoRules;
        dialog.setRules(rules(reported));
        dialog.show();
        QSignalSpy imports(&dialog, &TovraSplitRulesEditorDialog::importRequested);
        dialog.selectKind(u"proxy"_s);
        dialog.editor()->setPlainText(u"video.example\nmusic.example\n"_s);
        QTest::mouseClick(dialog.importButton(), Qt::LeftButton);
        QCOMPARE(imports.count(), 1);
        dialog.setImportInProgress(true);
        QVERIFY(!dialog.importButton()->isEnabled());
        QVERIFY(!dialog.kindBar()->isEnabled());
        // A failure keeps the text for another try.
        dialog.setImportInProgress(false);
        dialog.showResult(u"Could not import split rules"_s, u"error"_s);
        QCOMPARE(dialog.resultLabel()->property("tovraResultKind").toString(), u"error"_s);
        QVERIFY(dialog.hasUnsavedEdits(u"proxy"_s));

        QTest::mouseClick(dialog.importButton(), Qt::LeftButton);
        dialog.showResult(u"Custom split rules updated (2 rules)"_s, u"success"_s);
        QVERIFY(dialog.resultLabel()->isVisible());
        QCOMPARE(dialog.resultLabel()->text(), u"Custom split rules updated (2 rules)"_s);
        QVERIFY(!dialog.hasUnsavedEdits(u"proxy"_s));
        reported[u"proxy"_s] = QStringList{u"video.example"_s, u"music.example"_s};
        dialog.setRules(rules(reported));
        QCOMPARE(dialog.editor()->toPlainText(), u"video.example\nmusic.example\n"_s);
    }

    void pageOpensEditorAndRoutesItsErrors()
    {
        AppState state;
        ModePage page;
        page.show();
        QSignalSpy fetches(&page, &ModePage::splitRulesRequested);
        QSignalSpy imports(&page, &ModePage::importSplitRulesRequested);
        // No rules held yet: opening asks for them and waits.
        page.openRulesEditor();
        TovraSplitRulesEditorDialog *editor = page.rulesEditor();
        QVERIFY(editor->isVisible());
        QCOMPARE(fetches.count(), 1);
        page.setSplitRulesFetchInProgress(true);
        QCOMPARE(editor->statusLabel()->text(), u"Loading rules\u2026"_s);
        QVERIFY(page.offerInlineError(u"Could not load split rules"_s));
        QCOMPARE(editor->resultLabel()->text(), u"Could not load split rules"_s);
        page.setSplitRulesFetchInProgress(false);

        state.setSplitRules(rules(kDemoRules));
        page.refresh(state);
        QCOMPARE(editor->kinds().size(), 3);
        editor->editor()->setPlainText(u"example.org\n"_s);
        QTest::mouseClick(editor->importButton(), Qt::LeftButton);
        QCOMPARE(imports.count(), 1);
        QCOMPARE(imports.at(0).at(0).toString(), u"direct"_s);
        QVERIFY(page.offerInlineError(u"unknown rule kind"_s));
        QCOMPARE(editor->resultLabel()->text(), u"unknown rule kind"_s);
        // Closed and opened again: the unsaved text is still there, and nothing is fetched again.
        editor->reject();
        page.openRulesEditor();
        QCOMPARE(fetches.count(), 1);
        QCOMPARE(editor->editor()->toPlainText(), u"example.org\n"_s);
    }
};

QTEST_MAIN(TestSplitRulesEditor)
#include "TestSplitRulesEditor.moc"
