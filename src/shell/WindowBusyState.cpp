#include "WindowBusyState.h"

#include "RequestLedger.h"
#include "WindowController.h"

using Kind = RequestLedger::Kind;

void WindowBusyState::showModeBusy(const ShellContext &context)
{
    const RequestLedger *ledger = context.ledger;
    context.window->setModeOperationBusy(ledger->inFlight(Kind::Mode) ||
                                         ledger->inFlight(Kind::LocalNetwork) ||
                                         ledger->inFlight(Kind::SystemProxy));
}

void WindowBusyState::showSettingsBusy(const ShellContext &context)
{
    const RequestLedger *ledger = context.ledger;
    context.window->setSettingsOperationBusy(
        ledger->inFlight(Kind::KillSwitch) || ledger->inFlight(Kind::APIURL) ||
        ledger->inFlight(Kind::AutoConnect) || ledger->inFlight(Kind::ProxyListen) ||
        ledger->inFlight(Kind::SplitDNS) || ledger->inFlight(Kind::Repair));
}
