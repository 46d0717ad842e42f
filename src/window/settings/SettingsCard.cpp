#include "SettingsCard.h"

#include "SettingsRow.h"

#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

SettingsCard::SettingsCard(const QString &title, QWidget *parent)
    : QFrame(parent)
    , m_rows(new QVBoxLayout(this))
    , m_title(new QLabel(title, this))
    , m_note(new QLabel(this))
{
    setObjectName(QStringLiteral("TovraSettingsCard"));
    m_rows->setContentsMargins(0, 12, 0, 4);
    m_rows->setSpacing(0);
    m_title->setObjectName(QStringLiteral("TovraCardTitle"));
    m_title->setContentsMargins(16, 0, 16, 4);
    m_title->setAccessibleName(title);
    m_rows->addWidget(m_title);
    m_note->setObjectName(QStringLiteral("TovraSettingsNote"));
    m_note->setWordWrap(true);
    m_note->setContentsMargins(16, 0, 16, 4);
    m_note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_note->hide();
    m_rows->addWidget(m_note);
}

void SettingsCard::setNote(const QString &text, const QString &role)
{
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
    setRole(m_note, role);
}

QString SettingsCard::note() const
{
    return m_note->isVisibleTo(this) ? m_note->text() : QString();
}

QString SettingsCard::title() const
{
    return m_title->text();
}

SettingsRow *SettingsCard::addRow(const QString &label, const QString &hint, QWidget *control)
{
    auto *row = new SettingsRow(label, hint, this);
    if (control)
        row->setControl(control);
    // Only the last row goes without the divider under it.
    if (m_lastRow) {
        m_lastRow->setProperty("tovraLastRow", false);
        style()->unpolish(m_lastRow);
        style()->polish(m_lastRow);
    }
    row->setProperty("tovraLastRow", true);
    m_lastRow = row;
    m_rows->addWidget(row);
    return row;
}

void SettingsCard::setRole(QWidget *widget, const QString &role)
{
    if (widget->property("tovraRole").toString() == role)
        return;
    widget->setProperty("tovraRole", role);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

QString SettingsCard::unknownText()
{
    return tr("Unknown");
}
