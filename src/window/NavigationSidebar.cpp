#include "NavigationSidebar.h"

#include "AccessibleControl.h"
#include "IconTinter.h"
#include "ThemeColors.h"

#include <QButtonGroup>
#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const QSize kIconSize(24, 24);
constexpr int kMinimumWidth = 92;
constexpr int kButtonMinimumHeight = 72;
const char kIconProperty[] = "tovraSidebarIcon";

} // namespace

NavigationSidebar::NavigationSidebar(QWidget *parent)
    : QWidget(parent)
    , m_group(new QButtonGroup(this))
{
    // The entries are page navigation, not check boxes: "page tab, selected" in a tab list.
    AccessibleControl::setRole(this, QAccessible::PageTabList);
    setObjectName(QStringLiteral("TovraSidebar"));
    setAttribute(Qt::WA_StyledBackground, true);
    setMinimumWidth(kMinimumWidth);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 8);
    layout->setSpacing(0);

    const struct
    {
        QString text;
        const char *icon;
        const char *objectName;
    } entries[] = {
        {tr("VPN"), ":/icons/vpn.svg", "TovraSidebarVPN"},
        {tr("Locations"), ":/icons/locations.svg", "TovraSidebarLocations"},
        {tr("Mode"), ":/icons/mode.svg", "TovraSidebarMode"},
        {tr("Settings"), ":/icons/settings.svg", "TovraSidebarSettings"},
        {tr("Account"), ":/icons/account.svg", "TovraSidebarAccount"},
    };
    m_group->setExclusive(true);
    for (const auto &entry : entries) {
        const int index = int(m_buttons.size());
        if (index == 4) {
            // Account sits at the bottom, apart from the pages of the connection.
            layout->addStretch(1);
        }
        auto *button = new QToolButton(this);
        // Before anything else: the first change event already settles the accessible role.
        AccessibleControl::attach(button, QAccessible::PageTab);
        button->setObjectName(QString::fromLatin1(entry.objectName));
        button->setText(entry.text);
        button->setAccessibleName(entry.text);
        button->setCheckable(true);
        button->setAutoRaise(false);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIconSize(kIconSize);
        button->setMinimumHeight(kButtonMinimumHeight);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setProperty(kIconProperty, QString::fromLatin1(entry.icon));
        button->installEventFilter(this);
        m_group->addButton(button, index);
        layout->addWidget(button);
        m_buttons.append(button);
        connect(button, &QToolButton::clicked, this,
                [this, index] { Q_EMIT pageRequested(index); });
    }
}

QToolButton *NavigationSidebar::button(int index) const
{
    return m_buttons.value(index);
}

QString NavigationSidebar::entryText(int index) const
{
    const QToolButton *entry = button(index);
    return entry ? entry->text() : QString();
}

void NavigationSidebar::setCurrentIndex(int index)
{
    if (QToolButton *entry = button(index)) {
        entry->setChecked(true);
    }
}

int NavigationSidebar::currentIndex() const
{
    return m_group->checkedId();
}

void NavigationSidebar::applyTheme(const ThemeColors &colors)
{
    const qreal ratio = devicePixelRatioF();
    m_icons.clear();
    m_hoverIcons.clear();
    for (QToolButton *entry : std::as_const(m_buttons)) {
        const QString path = entry->property(kIconProperty).toString();
        const QIcon icon = IconTinter::sidebarIcon(path, colors, kIconSize, ratio);
        // The same icon, but its normal unchecked face is the active (hover) one.
        QIcon hover;
        for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
            for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active, QIcon::Disabled}) {
                const QIcon::Mode source =
                    (mode == QIcon::Normal && state == QIcon::Off) ? QIcon::Active : mode;
                hover.addPixmap(icon.pixmap(kIconSize, ratio, source, state), mode, state);
            }
        }
        m_icons.append(icon);
        m_hoverIcons.append(hover);
        entry->setIcon(entry->underMouse() ? hover : icon);
    }
}

bool NavigationSidebar::eventFilter(QObject *watched, QEvent *event)
{
    const qsizetype index = m_buttons.indexOf(static_cast<QToolButton *>(watched));
    if (index >= 0 && index < m_icons.size()) {
        if (event->type() == QEvent::Enter) {
            m_buttons.at(index)->setIcon(m_hoverIcons.at(index));
        } else if (event->type() == QEvent::Leave) {
            m_buttons.at(index)->setIcon(m_icons.at(index));
        }
    }
    return QWidget::eventFilter(watched, event);
}
