#include "SettingsPage.h"

#include <QLabel>

SettingsPage::SettingsPage(QWidget *parent)
    : WindowPage(QStringLiteral("TovraSettingsPage"), tr("Preferences"),
                 tr("Kill switch, DNS, proxies, language, appearance and updates appear here."),
                 parent)
    , m_busyLabel(new QLabel(tr("Applying settings..."), this))
{
    m_busyLabel->setObjectName(QStringLiteral("TovraSettingsHint"));
    m_busyLabel->setVisible(false);
    addContent(m_busyLabel);
}

void SettingsPage::setBusy(bool busy)
{
    m_busy = busy;
    m_busyLabel->setVisible(busy);
}
