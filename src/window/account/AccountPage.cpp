#include "AccountPage.h"

AccountPage::AccountPage(QWidget *parent)
    : WindowPage(QStringLiteral("TovraAccountPage"), tr("Your account"),
                 tr("Sign in to your Tovra account to connect and sync available locations."),
                 parent)
{}
