#include "VpnPage.h"

#include <QFrame>
#include <QTimer>

namespace {

constexpr int kSearchDebounceMs = 150;

} // namespace

VpnPage::VpnPage(QWidget *parent)
    : WindowPage(QStringLiteral("TovraVPNPage"), tr("Connection"),
                 tr("Your connection status and quick connect appear here."), parent)
    , m_quickEntryPopup(new QFrame(this))
    , m_searchTimer(new QTimer(this))
{
    m_quickEntryPopup->setObjectName(QStringLiteral("TovraVPNSearchPopup"));
    m_quickEntryPopup->hide();
    m_searchTimer->setSingleShot(true);
    m_searchTimer->setInterval(kSearchDebounceMs);
}

void VpnPage::closeQuickEntryPopup()
{
    m_searchTimer->stop();
    m_quickEntryPopup->hide();
}

bool VpnPage::isQuickEntryPopupOpen() const
{
    return m_quickEntryPopup->isVisible();
}

void VpnPage::setDaemonUnavailableReason(const QString &reason)
{
    Q_UNUSED(reason)
}

void VpnPage::setConnectInProgress(bool inProgress, const QString &targetId, const QString &label)
{
    Q_UNUSED(inProgress)
    Q_UNUSED(targetId)
    Q_UNUSED(label)
}
