#pragma once

#include "ModeInfo.h"
#include "WindowPage.h"

class QLabel;

// Page 2: the routing mode, its split options and the split rules.
class ModePage : public WindowPage
{
    Q_OBJECT

public:
    explicit ModePage(QWidget *parent = nullptr);

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

Q_SIGNALS:
    void setModeRequested(ModeInfo mode);
    void splitRulesRequested();
    void importSplitRulesRequested(QString kind, QString content);
    void setLocalNetworkRequested(QString mode);
    void setSystemProxyRequested(QString mode);

private:
    QLabel *m_busyLabel;
    bool m_modeBusy = false;
    bool m_settingsBusy = false;
    bool m_splitRulesFetch = false;
    bool m_splitRulesImport = false;
};
