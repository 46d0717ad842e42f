#include "ModePage.h"

#include <QLabel>

ModePage::ModePage(QWidget *parent)
    : WindowPage(QStringLiteral("TovraModePage"), tr("Routing mode"),
                 tr("Choose how your traffic is routed and which sites bypass the tunnel."), parent)
    , m_busyLabel(new QLabel(tr("Applying the mode..."), this))
{
    m_busyLabel->setObjectName(QStringLiteral("TovraModeBusy"));
    m_busyLabel->setVisible(false);
    addContent(m_busyLabel);
}

void ModePage::setModeBusy(bool busy)
{
    m_modeBusy = busy;
    m_busyLabel->setVisible(busy);
}

void ModePage::setSettingsBusy(bool busy)
{
    m_settingsBusy = busy;
}

void ModePage::setSplitRulesFetchInProgress(bool inProgress)
{
    m_splitRulesFetch = inProgress;
}

void ModePage::setSplitRulesImportInProgress(bool inProgress)
{
    m_splitRulesImport = inProgress;
}

bool ModePage::offerInlineError(const QString &message)
{
    // No inline error area yet: every mode error goes to the notification host.
    Q_UNUSED(message)
    return false;
}
