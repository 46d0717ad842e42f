#include "SettingsChoice.h"

#include <QCoreApplication>

namespace {

const int kValueRole = Qt::UserRole;

} // namespace

SettingsChoice::SettingsChoice(const QString &objectName, QWidget *parent)
    : QComboBox(parent)
{
    setObjectName(objectName);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(this, &QComboBox::activated, this, [this](int index) {
        const QString value = itemData(index, kValueRole).toString();
        if (value.isEmpty() || value == m_daemonValue) {
            showValue(m_daemonValue);
            return;
        }
        m_pending = true;
        Q_EMIT choiceRequested(value);
    });
}

void SettingsChoice::addChoice(const QString &value, const QString &label)
{
    addItem(label, value);
}

void SettingsChoice::setDaemonValue(const QString &value)
{
    m_daemonValue = value;
    if (m_pending && value == currentValue())
        m_pending = false;
    if (!m_pending)
        showValue(value);
}

QString SettingsChoice::currentValue() const
{
    return currentData(kValueRole).toString();
}

void SettingsChoice::settle()
{
    if (!m_pending)
        return;
    m_pending = false;
    showValue(m_daemonValue);
}

void SettingsChoice::showValue(const QString &value)
{
    int index = findData(value, kValueRole);
    if (index < 0) {
        // A value this client does not know, or none yet: an entry without a value says so.
        const QString unknown = QCoreApplication::translate("SettingsCard", "Unknown");
        index = findData(QString(), kValueRole);
        if (index < 0) {
            addItem(unknown, QString());
            index = count() - 1;
        }
        setItemText(index, value.isEmpty() ? unknown : value);
    }
    setCurrentIndex(index);
}
