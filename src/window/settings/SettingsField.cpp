#include "SettingsField.h"

#include "FieldClearButton.h"

#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

SettingsField::SettingsField(const QString &objectName, const QString &accessibleName,
                             const QString &placeholder, QWidget *parent)
    : QWidget(parent)
    , m_edit(new QLineEdit(this))
    , m_error(new QLabel(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    m_edit->setObjectName(objectName);
    m_edit->setAccessibleName(accessibleName);
    m_edit->setPlaceholderText(placeholder);
    FieldClearButton::enable(m_edit, FieldClearButton::Kind::Text);
    m_error->setObjectName(objectName + QStringLiteral("Error"));
    m_error->setProperty("tovraRole", QStringLiteral("error"));
    m_error->setWordWrap(true);
    m_error->hide();
    layout->addWidget(m_edit);
    layout->addWidget(m_error);

    connect(m_edit, &QLineEdit::textEdited, this, [this] {
        m_editing = true;
        showError(QString());
    });
    connect(m_edit, &QLineEdit::returnPressed, this, &SettingsField::submitted);
}

QString SettingsField::text() const
{
    return m_edit->text().trimmed();
}

void SettingsField::setDaemonValue(const QString &value)
{
    m_daemonValue = value;
    if (m_pending && value == text())
        m_pending = false;
    if (!m_editing && !m_pending && m_edit->text() != value)
        m_edit->setText(value);
}

void SettingsField::markSubmitted()
{
    m_editing = false;
    m_pending = true;
    showError(QString());
}

void SettingsField::settle()
{
    if (!m_pending)
        return;
    m_pending = false;
    setDaemonValue(m_daemonValue);
}

void SettingsField::showError(const QString &message)
{
    m_error->setText(message);
    m_error->setVisible(!message.isEmpty());
    // Screen readers hear the problem together with the field.
    m_edit->setAccessibleDescription(message);
}

QString SettingsField::error() const
{
    return m_error->isVisibleTo(this) ? m_error->text() : QString();
}
