// Writes the Mode page and its two dialogs as PNGs in light, dark and right-to-left, so that a
// person can look at them: tovra-mode-shots DIR (run with QT_QPA_PLATFORM=offscreen).

#include "AppState.h"
#include "ControlMetaTypes.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "ModeChoiceCard.h"
#include "ModeInlineError.h"
#include "ModePage.h"
#include "TranslationManager.h"
#include "SplitOptionsCard.h"
#include "TovraRegionPickerDialog.h"
#include "TovraSplitRulesEditorDialog.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

void fill(AppState &state)
{
    RuntimeInfo runtime;
    runtime.valid = true;
    ModeInfo &mode = runtime.mode;
    mode.valid = true;
    mode.transport = u"tovravpn"_s;
    mode.policy = u"split"_s;
    mode.localNetwork = u"direct"_s;
    mode.systemProxy = u"on"_s;
    mode.splitProfile.valid = true;
    mode.splitProfile.defaultRoute = u"proxy"_s;
    mode.splitProfile.directRegions = {u"CN"_s, u"DE"_s};
    mode.splitProfile.customRules = true;
    state.setRuntime(runtime);
    SplitRulesInfo rules;
    rules.valid = true;
    rules.rules.insert(u"direct"_s, {u"example.cn"_s, u"intranet.example"_s});
    rules.rules.insert(u"proxy"_s, {});
    rules.rules.insert(u"block"_s, {u"ads.example"_s});
    state.setSplitRules(rules);
}

void save(QWidget *widget, const QString &path)
{
    // Let delayed updates (the editor's line count) land first.
    QEventLoop loop;
    QTimer::singleShot(250, &loop, &QEventLoop::quit);
    loop.exec();
    widget->grab().save(path);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    registerControlMetaTypes();
    // TOVRA_SHOT_LANG=de (any shipped tag) shows the pictures in that language.
    TranslationManager translations;
    if (qEnvironmentVariableIsSet("TOVRA_SHOT_LANG"))
        translations.apply(qEnvironmentVariable("TOVRA_SHOT_LANG"));
    const QString dir = app.arguments().value(1, u"/tmp/shots/mode"_s);
    QDir().mkpath(dir);
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());

    for (const QString &appearance : {u"light"_s, u"dark"_s}) {
        for (const bool rtl : {false, true}) {
            QApplication::setLayoutDirection(rtl ? Qt::RightToLeft : Qt::LeftToRight);
            const QString tag = appearance + (rtl ? u"-rtl"_s : u"-ltr"_s);
            AppState state;
            fill(state);
            GuiPreferences preferences;
            MainWindow window(&state, &preferences);
            window.setAppearancePreference(appearance);
            window.resize(900, 760);
            window.show();
            window.showPage(MainWindow::ModePageIndex);
            auto *page = window.findChild<ModePage *>();
            app.processEvents();
            save(&window, dir + u"/page-"_s + tag + u".png"_s);

            // The lower half, with the split options and network cards.
            auto *scroll = page->findChild<QScrollArea *>();
            scroll->widget()->resize(scroll->viewport()->width(),
                                     scroll->widget()->sizeHint().height());
            save(scroll->widget(), dir + u"/page-full-"_s + tag + u".png"_s);

            page->highlightKillSwitchModes();
            QMetaObject::invokeMethod(page->choiceCard()->inlineError(), [&] {
                page->choiceCard()->inlineError()->showError(
                    u"Turn off Kill Switch before switching to Tovra Proxy."_s);
            });
            app.processEvents();
            save(&window, dir + u"/page-killswitch-"_s + tag + u".png"_s);

            page->openRegionPicker();
            TovraRegionPickerDialog *picker = page->regionPicker();
            app.processEvents();
            save(picker, dir + u"/regions-"_s + tag + u".png"_s);
            picker->searchField()->setText(u"uni"_s);
            app.processEvents();
            save(picker, dir + u"/regions-search-"_s + tag + u".png"_s);
            picker->reject();

            page->openRulesEditor();
            TovraSplitRulesEditorDialog *editor = page->rulesEditor();
            editor->editor()->setPlainText(
                u"# company\nexample.cn\nintranet.example\nnot a domain\n10.0.0.0/8\n"_s);
            app.processEvents();
            editor->importButton()->click();
            app.processEvents();
            save(editor, dir + u"/rules-"_s + tag + u".png"_s);
            editor->editor()->setPlainText(u"example.cn\nintranet.example\n10.0.0.0/8\n"_s);
            editor->showResult(u"Custom split rules updated (3 rule(s))"_s, u"success"_s);
            app.processEvents();
            save(editor, dir + u"/rules-result-"_s + tag + u".png"_s);
            editor->reject();
        }
    }
    return 0;
}
