#include "KillSwitchConfirm.h"

#include "ConfirmDialog.h"

#include <QCoreApplication>

int confirmKillSwitchNeedsVpnMode(QWidget *parent)
{
    ConfirmDialog dialog(parent);
    dialog.setTitle(
        QCoreApplication::translate("KillSwitchConfirm", "Kill Switch needs a VPN mode"));
    dialog.setMessage(QCoreApplication::translate(
        "KillSwitchConfirm", "Kill Switch can\u2019t run in Tovra Proxy. Switch to Auto "
                             "(recommended), TovraVPN, or WireGuard to enable it."));
    dialog.setAcceptButton(
        //: Button that switches to the Auto mode and turns the kill switch on
        QCoreApplication::translate("KillSwitchConfirm", "Switch to Auto and enable"),
        QCoreApplication::translate("KillSwitchConfirm", "Switch to Auto and enable Kill Switch"));
    dialog.setAlternateButton(
        //: Button that opens the Mode page to pick a VPN mode
        QCoreApplication::translate("KillSwitchConfirm", "Choose mode\u2026"),
        QCoreApplication::translate("KillSwitchConfirm", "Choose a mode for Kill Switch"));
    //: Button
    dialog.setCancelButton(QCoreApplication::translate("KillSwitchConfirm", "Cancel"),
                           QCoreApplication::translate("KillSwitchConfirm", "Cancel"));
    return dialog.exec();
}

int confirmProxyNeedsKillSwitchOff(QWidget *parent)
{
    ConfirmDialog dialog(parent);
    dialog.setTitle(
        QCoreApplication::translate("KillSwitchConfirm", "Tovra Proxy needs Kill Switch off"));
    dialog.setMessage(QCoreApplication::translate(
        "KillSwitchConfirm", "Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings "
                             "first, then switch modes."));
    dialog.setAcceptButton(
        //: Button that opens the Settings page
        QCoreApplication::translate("KillSwitchConfirm", "Open Settings"),
        QCoreApplication::translate("KillSwitchConfirm", "Open Settings to turn off Kill Switch"));
    //: Button
    dialog.setCancelButton(QCoreApplication::translate("KillSwitchConfirm", "Cancel"),
                           QCoreApplication::translate("KillSwitchConfirm", "Cancel"));
    return dialog.exec();
}
