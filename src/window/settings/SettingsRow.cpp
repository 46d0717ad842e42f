#include "SettingsRow.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

SettingsRow::SettingsRow(const QString &label, const QString &hint, QWidget *parent)
    : QFrame(parent)
    , m_column(new QVBoxLayout(this))
    , m_top(new QHBoxLayout)
    , m_label(new QLabel(label, this))
    , m_hint(new QLabel(hint, this))
{
    setObjectName(QStringLiteral("TovraSettingsRow"));
    m_column->setContentsMargins(16, 12, 16, 12);
    m_column->setSpacing(8);
    m_label->setObjectName(QStringLiteral("TovraSettingsLabel"));
    m_label->setWordWrap(true);
    m_hint->setObjectName(QStringLiteral("TovraSettingsHint"));
    m_hint->setWordWrap(true);
    m_hint->setVisible(!hint.isEmpty());

    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_label);
    texts->addWidget(m_hint);
    m_top->setSpacing(16);
    m_top->addLayout(texts, 1);
    // Label and hint stay together beside a control taller than they are.
    m_top->setAlignment(texts, Qt::AlignVCenter);
    m_column->addLayout(m_top);
}

void SettingsRow::setControl(QWidget *control)
{
    const auto *button = qobject_cast<QAbstractButton *>(control);
    m_controlIsAction = button && !button->text().isEmpty();
    if (!m_controlIsAction && control->accessibleName().isEmpty())
        control->setAccessibleName(m_label->text());
    m_control = control;
    m_describesControl = control->accessibleDescription().isEmpty();
    describeControl();
    m_label->setBuddy(control);
    m_top->addWidget(control, 0, Qt::AlignVCenter);
}

void SettingsRow::addBelow(QWidget *widget)
{
    m_column->addWidget(widget);
}

void SettingsRow::setHint(const QString &hint)
{
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
    describeControl();
}

void SettingsRow::describeControl()
{
    if (!m_control || !m_describesControl)
        return;
    const QString hint = m_hint->text();
    QString description = hint;
    if (m_controlIsAction)
        description = hint.isEmpty()
                          ? m_label->text()
                          : tr("%1: %2", "row title: help text").arg(m_label->text(), hint);
    if (m_control->accessibleDescription() != description)
        m_control->setAccessibleDescription(description);
}

QString SettingsRow::hint() const
{
    return m_hint->text();
}
