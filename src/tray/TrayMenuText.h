#pragma once

#include <QCoreApplication>

// The tray's texts share one translation context across the tray's classes.
class TrayMenuText
{
    Q_DECLARE_TR_FUNCTIONS(TrayMenuText)
};
