#include "ModeSegmentedBar.h"

#include "AccessibleControl.h"
#include "RequestButton.h"

#include <QButtonGroup>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>

namespace {

const char kValueProperty[] = "tovraSegmentValue";

void repolish(QWidget *widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

} // namespace

ModeSegmentedBar::ModeSegmentedBar(const QString &accessibleName, QWidget *parent)
    : QFrame(parent)
    , m_group(new QButtonGroup(this))
{
    AccessibleControl::setRole(this, QAccessible::Grouping);
    setObjectName(QStringLiteral("TovraSegmented"));
    setAccessibleName(accessibleName);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    auto *layout = new QHBoxLayout(this);
    // Inside the frame's border, so a checked segment's fill never covers it.
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    m_group->setExclusive(false);
    connect(m_group, &QButtonGroup::buttonClicked, this, [this](QAbstractButton *button) {
        // The checked segment follows the owner's value only: a click never checks one.
        Q_EMIT valueRequested(button->property(kValueProperty).toString());
    });
}

QPushButton *ModeSegmentedBar::addSegment(const QString &value, const QString &text,
                                          const QString &description)
{
    auto *button = new RequestButton(QAccessible::RadioButton, this);
    button->setText(text);
    button->setProperty(kValueProperty, value);
    button->setAccessibleName(text);
    if (!description.isEmpty()) {
        button->setToolTip(description);
        button->setAccessibleDescription(description);
    }
    fitText(button);
    m_group->addButton(button);
    m_buttons.append(button);
    layout()->addWidget(button);
    updatePositions();
    setCurrentValue(m_current);
    return button;
}

void ModeSegmentedBar::clearSegments()
{
    for (QPushButton *button : std::as_const(m_buttons)) {
        m_group->removeButton(button);
        delete button;
    }
    m_buttons.clear();
}

void ModeSegmentedBar::setSegmentText(const QString &value, const QString &text)
{
    if (QPushButton *button = segment(value)) {
        button->setText(text);
        button->setAccessibleName(text);
        fitText(button);
    }
}

void ModeSegmentedBar::fitText(QPushButton *button)
{
    QFont bold = button->font();
    bold.setWeight(QFont::DemiBold);
    // The template's horizontal padding is 14px a side, plus the divider.
    constexpr int kPadding = 2 * 14 + 2;
    button->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(button->text()) + kPadding);
}

void ModeSegmentedBar::setCurrentValue(const QString &value)
{
    m_current = value;
    for (QPushButton *button : std::as_const(m_buttons))
        button->setChecked(button->property(kValueProperty).toString() == value);
}

QString ModeSegmentedBar::currentValue() const
{
    return m_current;
}

QStringList ModeSegmentedBar::values() const
{
    QStringList result;
    for (const QPushButton *button : m_buttons)
        result.append(button->property(kValueProperty).toString());
    return result;
}

QPushButton *ModeSegmentedBar::segment(const QString &value) const
{
    for (QPushButton *button : m_buttons) {
        if (button->property(kValueProperty).toString() == value)
            return button;
    }
    return nullptr;
}

void ModeSegmentedBar::setAttachedToEditor(bool attached)
{
    m_attached = attached;
    setProperty("tovraAttachedEditor", attached ? QStringLiteral("true") : QStringLiteral("false"));
    repolish(this);
    updatePositions();
}

void ModeSegmentedBar::updatePositions()
{
    const qsizetype count = m_buttons.size();
    for (qsizetype i = 0; i < count; ++i) {
        QString position;
        if (count == 1)
            position = QStringLiteral("single");
        else if (i == 0)
            position = QStringLiteral("start");
        else if (i == count - 1)
            position = QStringLiteral("end");
        m_buttons.at(i)->setProperty("tovraSegment", position);
        repolish(m_buttons.at(i));
    }
}
