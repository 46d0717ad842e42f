#include "WindowPage.h"

#include "AppState.h"

#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

WindowPage::WindowPage(const QString &objectName, const QString &heading, const QString &intro,
                       QWidget *parent)
    : QWidget(parent)
    , m_body(new QVBoxLayout(this))
    , m_heading(new QLabel(heading, this))
    , m_colors(ThemeColors::forAppearance(Appearance::Light))
{
    setObjectName(objectName);
    setAttribute(Qt::WA_StyledBackground, true);
    m_body->setContentsMargins(0, 0, 0, 0);
    m_body->setSpacing(12);

    m_heading->setObjectName(QStringLiteral("TovraSectionTitle"));
    // A page whose cards carry their own titles passes no heading and no intro.
    m_heading->setVisible(!heading.isEmpty());
    m_body->addWidget(m_heading);
    if (!intro.isEmpty()) {
        auto *introLabel = new QLabel(intro, this);
        introLabel->setProperty("tovraRole", QStringLiteral("muted"));
        introLabel->setWordWrap(true);
        m_body->addWidget(introLabel);
    }
    m_body->addStretch(1);
}

void WindowPage::refresh(const AppState &state)
{
    Q_UNUSED(state)
}

WindowPage::Records WindowPage::reads() const
{
    return {};
}

void WindowPage::applyTheme(const ThemeColors &colors)
{
    m_colors = colors;
}

void WindowPage::addContent(QWidget *widget)
{
    m_body->insertWidget(m_body->count() - 1, widget);
}

QString WindowPage::heading() const
{
    return m_heading->text();
}

void WindowPage::repolish(QWidget *widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}
