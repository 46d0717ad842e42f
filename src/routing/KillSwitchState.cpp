#include "KillSwitchState.h"

#include <QCoreApplication>

namespace {

// The words are listed once under "KillSwitchConfirm" so that every translation carries them;
// a caller's own context may word them differently.
const char *const kUnavailable = QT_TRANSLATE_NOOP("KillSwitchConfirm", "Unavailable");
const char *const kLockdown = QT_TRANSLATE_NOOP("KillSwitchConfirm", "Lockdown");
const char *const kLockdownUnavailable =
    QT_TRANSLATE_NOOP("KillSwitchConfirm", "Lockdown unavailable");
//: State of the kill switch: turned on
const char *const kOn = QT_TRANSLATE_NOOP("KillSwitchConfirm", "On");
//: State of the kill switch: turned off
const char *const kOff = QT_TRANSLATE_NOOP("KillSwitchConfirm", "Off");

QString translated(const char *context, const char *text)
{
    const QString source = QString::fromUtf8(text);
    if (context && *context) {
        const QString own = QCoreApplication::translate(context, text);
        if (own != source)
            return own;
    }
    return QCoreApplication::translate("KillSwitchConfirm", text);
}

} // namespace

QString killSwitchStateText(const KillSwitchInfo &record, const char *context)
{
    if (!record.valid)
        return translated(context, kUnavailable);
    // The record's "guard" is the daemon's word for whether the switch is in force.
    if (record.mode == u"lockdown")
        return translated(context, record.guard == u"active" ? kLockdown : kLockdownUnavailable);
    return translated(context, record.enabled ? kOn : kOff);
}
