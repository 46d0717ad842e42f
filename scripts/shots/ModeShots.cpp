// Writes the Mode page, its special states and its two dialogs as PNGs for a person to look at:
// tovra-mode-shots DIR LOOK [SUFFIX] writes DIR/LOOK-mode-NAME[SUFFIX].png. LOOK is light, dark,
// rtl or dark-rtl; TOVRA_SHOT_LANG picks the language. scripts/window-screenshots.sh runs it
// with QT_QPA_PLATFORM=offscreen.

#include "AppState.h"
#include "ControlMetaTypes.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "ModeChoiceCard.h"
#include "ModeInlineError.h"
#include "ModePage.h"
#include "SplitOptionsCard.h"
#include "TovraRegionPickerDialog.h"
#include "TovraSplitRulesEditorDialog.h"
#include "TranslationManager.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
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
    const QStringList args = app.arguments();
    if (args.size() < 3) {
        qWarning("usage: tovra-mode-shots DIR LOOK [SUFFIX]");
        return 2;
    }
    const QString look = args.at(2);
    const QString prefix = args.at(1) + u'/' + look + u"-mode-"_s;
    const QString suffix = args.value(3) + u".png"_s;
    TranslationManager translations;
    if (qEnvironmentVariableIsSet("TOVRA_SHOT_LANG"))
        translations.apply(qEnvironmentVariable("TOVRA_SHOT_LANG"));
    QApplication::setLayoutDirection(look.endsWith(u"rtl"_s) ? Qt::RightToLeft : Qt::LeftToRight);
    QDir().mkpath(args.at(1));
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());

    AppState state;
    fill(state);
    GuiPreferences preferences;
    MainWindow window(&state, &preferences);
    window.setAppearancePreference(look.startsWith(u"dark"_s) ? u"dark"_s : u"light"_s);
    window.resize(900, 760);
    window.show();
    window.showPage(MainWindow::ModePageIndex);
    auto *page = window.findChild<ModePage *>();
    app.processEvents();
    save(&window, prefix + u"page"_s + suffix);

    // The lower half, with the split options and network cards.
    auto *scroll = page->findChild<QScrollArea *>();
    scroll->widget()->resize(scroll->viewport()->width(), scroll->widget()->sizeHint().height());
    save(scroll->widget(), prefix + u"page-full"_s + suffix);

    page->highlightKillSwitchModes();
    QMetaObject::invokeMethod(page->choiceCard()->inlineError(), [&] {
        page->choiceCard()->inlineError()->showError(
            u"Turn off Kill Switch before switching to Tovra Proxy."_s);
    });
    app.processEvents();
    save(&window, prefix + u"killswitch"_s + suffix);

    page->openRegionPicker();
    TovraRegionPickerDialog *picker = page->regionPicker();
    app.processEvents();
    save(picker, prefix + u"regions"_s + suffix);
    picker->searchField()->setText(u"uni"_s);
    app.processEvents();
    save(picker, prefix + u"regions-search"_s + suffix);
    picker->reject();

    page->openRulesEditor();
    TovraSplitRulesEditorDialog *editor = page->rulesEditor();
    editor->editor()->setPlainText(
        u"# company\nexample.cn\nintranet.example\nnot a domain\n10.0.0.0/8\n"_s);
    app.processEvents();
    editor->importButton()->click();
    app.processEvents();
    save(editor, prefix + u"rules"_s + suffix);
    editor->editor()->setPlainText(u"example.cn\nintranet.example\n10.0.0.0/8\n"_s);
    editor->showResult(u"Custom split rules updated (3 rule(s))"_s, u"success"_s);
    app.processEvents();
    save(editor, prefix + u"rules-result"_s + suffix);
    editor->reject();
    return 0;
}
