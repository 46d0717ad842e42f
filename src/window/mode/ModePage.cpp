#include "ModePage.h"

#include "AppState.h"
#include "KillSwitchConfirm.h"
#include "ModeChoiceCard.h"
#include "ModeInlineError.h"
#include "NetworkOptionsCard.h"
#include "SplitOptionsCard.h"
#include "TovraRegionPickerDialog.h"
#include "TovraSplitRulesEditorDialog.h"

#include <QBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

// Effectively all of the page's height below the intro goes to the scrolling cards.
constexpr int kScrollStretch = 100;

} // namespace

ModePage::ModePage(QWidget *parent)
    : WindowPage(QStringLiteral("TovraModePage"), tr("Routing mode"),
                 tr("Choose how your traffic is routed and which sites bypass the tunnel."), parent)
    , m_scroll(new QScrollArea(this))
    , m_confirmProxy(confirmProxyNeedsKillSwitchOff)
{
    m_scroll->setObjectName(QStringLiteral("TovraModeScrollArea"));
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    // Not a stop of its own: Tab goes to the controls, and the area scrolls to show them.
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *content = new QWidget(m_scroll);
    auto *cards = new QVBoxLayout(content);
    // Room on the trailing side for the scroll bar.
    cards->setContentsMargins(0, 0, 12, 0);
    cards->setSpacing(14);
    // In place before the cards exist: placing a filled page restyles and measures it all.
    m_scroll->setWidget(content);
    m_choices = new ModeChoiceCard(content);
    m_split = new SplitOptionsCard(content);
    m_network = new NetworkOptionsCard(content);
    cards->addWidget(m_choices);
    cards->addWidget(m_split);
    cards->addWidget(m_network);
    cards->addStretch(1);
    addContent(m_scroll);
    if (auto *box = qobject_cast<QBoxLayout *>(layout()))
        box->setStretchFactor(m_scroll, kScrollStretch);

    connect(m_choices, &ModeChoiceCard::choiceRequested, this, &ModePage::chooseMode);
    connect(m_split, &SplitOptionsCard::setModeRequested, this, [this](const ModeInfo &mode) {
        request(Origin::Split);
        Q_EMIT setModeRequested(mode);
    });
    connect(m_split, &SplitOptionsCard::chooseRegionsRequested, this, &ModePage::openRegionPicker);
    connect(m_split, &SplitOptionsCard::editRulesRequested, this, &ModePage::openRulesEditor);
    connect(m_network, &NetworkOptionsCard::setLocalNetworkRequested, this,
            [this](const QString &value) {
                request(Origin::Network);
                Q_EMIT setLocalNetworkRequested(value);
            });
    connect(m_network, &NetworkOptionsCard::setSystemProxyRequested, this,
            [this](const QString &value) {
                request(Origin::Network);
                Q_EMIT setSystemProxyRequested(value);
            });
    updateEnabled();
}

WindowPage::Records ModePage::reads() const
{
    return Record::Runtime | Record::KillSwitch | Record::SplitRules;
}

void ModePage::refresh(const AppState &state)
{
    const ModeInfo &mode = state.runtime().mode;
    if (!(mode == m_mode)) {
        // The daemon took a change: an error still on show belongs to an older attempt.
        if (m_origin != Origin::Rules)
            m_origin = Origin::None;
        for (ModeInlineError *error :
             {m_choices->inlineError(), m_split->inlineError(), m_network->inlineError()})
            error->clearError();
    }
    m_mode = mode;
    m_killSwitch = state.killSwitch().valid ? state.killSwitch() : state.runtime().killSwitch;
    m_rules = state.splitRules();
    m_choices->refresh(m_mode);
    m_split->refresh(m_mode, ruleCount());
    m_network->refresh(m_mode);
    if (m_rulesEditor)
        m_rulesEditor->setRules(m_rules);
}

void ModePage::applyTheme(const ThemeColors &colors)
{
    WindowPage::applyTheme(colors);
    if (m_regionPicker)
        m_regionPicker->setThemeColors(colors);
    if (m_rulesEditor)
        m_rulesEditor->setThemeColors(colors);
}

void ModePage::setModeBusy(bool busy)
{
    m_modeBusy = busy;
    m_choices->setBusy(busy);
    updateEnabled();
}

void ModePage::setSettingsBusy(bool busy)
{
    m_settingsBusy = busy;
    updateEnabled();
}

void ModePage::setSplitRulesFetchInProgress(bool inProgress)
{
    m_splitRulesFetch = inProgress;
    if (m_rulesEditor)
        m_rulesEditor->setFetchInProgress(inProgress);
}

void ModePage::setSplitRulesImportInProgress(bool inProgress)
{
    m_splitRulesImport = inProgress;
    if (m_rulesEditor)
        m_rulesEditor->setImportInProgress(inProgress);
}

void ModePage::updateEnabled()
{
    // A kill switch change in flight decides whether a proxy mode may be chosen.
    m_choices->setChoicesEnabled(!m_modeBusy && !m_settingsBusy);
    m_split->setControlsEnabled(!m_modeBusy);
    m_network->setControlsEnabled(!m_modeBusy);
}

bool ModePage::killSwitchEnabled() const
{
    return m_killSwitch.valid && m_killSwitch.enabled;
}

int ModePage::ruleCount() const
{
    if (!m_rules.valid)
        return -1;
    int count = 0;
    for (const QStringList &items : m_rules.rules)
        count += int(items.size());
    return count;
}

void ModePage::request(Origin origin)
{
    for (ModeInlineError *error :
         {m_choices->inlineError(), m_split->inlineError(), m_network->inlineError()})
        error->clearError();
    m_origin = origin;
}

void ModePage::setProxyConfirmation(ProxyConfirmation confirm)
{
    m_confirmProxy =
        confirm ? std::move(confirm) : ProxyConfirmation(confirmProxyNeedsKillSwitchOff);
}

void ModePage::chooseMode(ModeChoice choice)
{
    const ModeInfo mode = modeForChoice(choice);
    ModeChoice current = ModeChoice::Auto;
    if (ModeChoiceCard::choiceOf(m_mode, &current) && current == choice)
        return;
    if (mode.transport == u"proxy" && killSwitchEnabled()) {
        // The kill switch blocks the proxy: it has to go off first, in Settings.
        if (m_confirmProxy(window()) == 1)
            Q_EMIT settingsPageRequested();
        return;
    }
    m_choices->setVpnModesHighlighted(false);
    request(Origin::Modes);
    Q_EMIT setModeRequested(mode);
}

void ModePage::highlightKillSwitchModes()
{
    m_choices->setVpnModesHighlighted(true);
    m_scroll->verticalScrollBar()->setValue(0);
}

void ModePage::hideEvent(QHideEvent *event)
{
    // Leaving the page drops the kill switch's wait for a mode, and so the marks.
    m_choices->setVpnModesHighlighted(false);
    WindowPage::hideEvent(event);
}

void ModePage::openRegionPicker()
{
    if (!m_split->hasFamily())
        return;
    if (!m_regionPicker) {
        m_regionPicker = new TovraRegionPickerDialog(this);
        m_regionPicker->setThemeColors(themeColors());
        connect(m_regionPicker, &QDialog::accepted, this, &ModePage::applyRegions);
    }
    m_regionPicker->setContext(m_split->family(), m_split->regionsGoDirect());
    m_regionPicker->setSelectedRegions(m_split->regions());
    m_regionPicker->open();
}

void ModePage::applyRegions()
{
    // The record may have moved on while the dialog was open; the change applies to the latest.
    if (!m_split->hasFamily())
        return;
    const QStringList chosen = m_regionPicker->selectedRegions();
    QStringList current;
    for (const QString &code : m_split->regions())
        current.append(code.trimmed().toUpper());
    if (chosen == current)
        return;
    const ModeInfo mode = m_split->regionsGoDirect()
                              ? splitModeWithDirectRegions(m_mode, m_split->family(), chosen)
                              : splitModeWithProxyRegions(m_mode, m_split->family(), chosen);
    request(Origin::Split);
    Q_EMIT setModeRequested(mode);
}

void ModePage::openRulesEditor()
{
    if (!m_rulesEditor) {
        m_rulesEditor = new TovraSplitRulesEditorDialog(this);
        m_rulesEditor->setThemeColors(themeColors());
        connect(m_rulesEditor, &TovraSplitRulesEditorDialog::importRequested, this,
                [this](const QString &kind, const QString &content) {
                    request(Origin::Rules);
                    Q_EMIT importSplitRulesRequested(kind, content);
                });
    }
    m_rulesEditor->setRules(m_rules);
    m_rulesEditor->setFetchInProgress(m_splitRulesFetch);
    m_rulesEditor->setImportInProgress(m_splitRulesImport);
    if (m_rules.rules.isEmpty() && !m_splitRulesFetch && !m_splitRulesImport) {
        request(Origin::Rules);
        Q_EMIT splitRulesRequested();
    }
    m_rulesEditor->open();
}

void ModePage::showSplitRulesResult(const QString &text, const QString &kind)
{
    if (m_rulesEditor)
        m_rulesEditor->showResult(text, kind);
    if (m_origin == Origin::Rules && kind != u"error")
        m_origin = Origin::None;
}

bool ModePage::offerInlineError(const QString &message)
{
    const Origin origin = m_origin;
    if (origin == Origin::Rules) {
        m_origin = Origin::None;
        if (!m_rulesEditor || !m_rulesEditor->isVisible())
            return false;
        m_rulesEditor->showResult(message, QStringLiteral("error"));
        return true;
    }
    // Out of sight an inline error would go unread; the window notifies instead.
    if (origin == Origin::None || !isVisible())
        return false;
    m_origin = Origin::None;
    ModeInlineError *target = origin == Origin::Modes   ? m_choices->inlineError()
                              : origin == Origin::Split ? m_split->inlineError()
                                                        : m_network->inlineError();
    target->showError(message);
    m_scroll->ensureWidgetVisible(target);
    return true;
}
