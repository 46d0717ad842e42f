#include "SettingsRow.h"

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
    m_column->addLayout(m_top);
}

void SettingsRow::setControl(QWidget *control)
{
    if (control->accessibleName().isEmpty())
        control->setAccessibleName(m_label->text());
    if (!m_hint->text().isEmpty() && control->accessibleDescription().isEmpty())
        control->setAccessibleDescription(m_hint->text());
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
}

QString SettingsRow::hint() const
{
    return m_hint->text();
}
