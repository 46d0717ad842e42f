#include "ModeOptionButton.h"

#include <QLabel>
#include <QLayout>
#include <QStyle>
#include <QVBoxLayout>

ModeOptionButton::ModeOptionButton(const QString &title, const QString &description,
                                   QWidget *parent)
    : RequestButton(QAccessible::RadioButton, parent)
    , m_title(new QLabel(title, this))
    , m_description(new QLabel(description, this))
{
    setObjectName(QStringLiteral("TovraModeOption"));
    setAccessibleName(title);
    setAccessibleDescription(description);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);

    m_title->setObjectName(QStringLiteral("TovraModeTitle"));
    m_description->setObjectName(QStringLiteral("TovraModeDescription"));
    m_description->setWordWrap(true);
    for (QLabel *label : {m_title, m_description})
        label->setAttribute(Qt::WA_TransparentForMouseEvents);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 10, 14, 10);
    layout->setSpacing(2);
    layout->addWidget(m_title);
    layout->addWidget(m_description);
    updateState();
}

QString ModeOptionButton::title() const
{
    return m_title->text();
}

QString ModeOptionButton::description() const
{
    return m_description->text();
}

void ModeOptionButton::setHighlighted(bool highlighted)
{
    if (m_highlighted == highlighted)
        return;
    m_highlighted = highlighted;
    updateState();
}

QSize ModeOptionButton::sizeHint() const
{
    return layout()->sizeHint();
}

QSize ModeOptionButton::minimumSizeHint() const
{
    return layout()->minimumSize();
}

bool ModeOptionButton::hasHeightForWidth() const
{
    return true;
}

int ModeOptionButton::heightForWidth(int width) const
{
    return layout()->totalHeightForWidth(width);
}

void ModeOptionButton::checkStateSet()
{
    RequestButton::checkStateSet();
    updateState();
}

void ModeOptionButton::updateState()
{
    QString state;
    if (isChecked())
        state = QStringLiteral("checked");
    else if (m_highlighted)
        state = QStringLiteral("highlighted");
    // The labels take the card's state so the style template can colour them with it.
    for (QWidget *widget : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_title),
                            static_cast<QWidget *>(m_description)}) {
        if (widget->property("tovraModeOptionState").toString() == state)
            continue;
        widget->setProperty("tovraModeOptionState", state);
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
        widget->update();
    }
}
