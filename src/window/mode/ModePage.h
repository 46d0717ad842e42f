#pragma once

#include "KillSwitchInfo.h"
#include "ModeInfo.h"
#include "RoutingMode.h"
#include "SplitRulesInfo.h"
#include "WindowPage.h"

#include <functional>

class ModeChoiceCard;
class NetworkOptionsCard;
class QScrollArea;
class SplitOptionsCard;
class TovraRegionPickerDialog;
class TovraSplitRulesEditorDialog;

// Page 2: the routing mode, its split options, local network and system proxy, and the
// dialogs for regions and custom split rules. Every change leaves as a request; what the page
// shows is what the daemon last reported.
class ModePage : public WindowPage
{
    Q_OBJECT

public:
    // Asks whether to open Settings when a proxy mode meets an enabled kill switch: 1 yes.
    using ProxyConfirmation = std::function<int(QWidget *parent)>;

    explicit ModePage(QWidget *parent = nullptr);

    void refresh(const AppState &state) override;
    Records reads() const override;
    void applyTheme(const ThemeColors &colors) override;

    void setModeBusy(bool busy);
    bool isModeBusy() const { return m_modeBusy; }
    void setSettingsBusy(bool busy);
    bool isSettingsBusy() const { return m_settingsBusy; }
    void setSplitRulesFetchInProgress(bool inProgress);
    bool isSplitRulesFetchInProgress() const { return m_splitRulesFetch; }
    void setSplitRulesImportInProgress(bool inProgress);
    bool isSplitRulesImportInProgress() const { return m_splitRulesImport; }

    // Returns true when the page shows the error itself; the window notifies otherwise.
    bool offerInlineError(const QString &message);
    // The shell's word on a split rules import, for the rule editor when it is open.
    void showSplitRulesResult(const QString &text, const QString &kind);
    // Marks the modes the kill switch can run in, until one is chosen or the page is left.
    void highlightKillSwitchModes();

    void setProxyConfirmation(ProxyConfirmation confirm);
    void chooseMode(ModeChoice choice);
    void openRegionPicker();
    void openRulesEditor();

    ModeChoiceCard *choiceCard() const { return m_choices; }
    SplitOptionsCard *splitCard() const { return m_split; }
    NetworkOptionsCard *networkCard() const { return m_network; }
    // Created when first opened.
    TovraRegionPickerDialog *regionPicker() const { return m_regionPicker; }
    TovraSplitRulesEditorDialog *rulesEditor() const { return m_rulesEditor; }

Q_SIGNALS:
    void setModeRequested(ModeInfo mode);
    void splitRulesRequested();
    void importSplitRulesRequested(QString kind, QString content);
    void setLocalNetworkRequested(QString mode);
    void setSystemProxyRequested(QString mode);
    // Not for the daemon: the window shows its Settings page.
    void settingsPageRequested();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    // Where the last request came from, so its error can be shown beside it.
    enum class Origin { None, Modes, Split, Network, Rules };

    void request(Origin origin);
    void applyRegions();
    void updateEnabled();
    bool killSwitchEnabled() const;
    int ruleCount() const;

    QScrollArea *m_scroll;
    ModeChoiceCard *m_choices;
    SplitOptionsCard *m_split;
    NetworkOptionsCard *m_network;
    TovraRegionPickerDialog *m_regionPicker = nullptr;
    TovraSplitRulesEditorDialog *m_rulesEditor = nullptr;
    ProxyConfirmation m_confirmProxy;

    ModeInfo m_mode;
    KillSwitchInfo m_killSwitch;
    SplitRulesInfo m_rules;
    Origin m_origin = Origin::None;
    bool m_modeBusy = false;
    bool m_settingsBusy = false;
    bool m_splitRulesFetch = false;
    bool m_splitRulesImport = false;
};
