#include "LocationsToolbar.h"

#include "LocationsFavoriteButton.h"
#include "WindowShortcuts.h"

#include "IconTinter.h"
#include "ThemeColors.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

struct TabRow
{
    const char *word;
    const char *label;
};

const TabRow kTabs[] = {
    {"all", QT_TRANSLATE_NOOP("LocationsToolbar", "All")},
    {"free", QT_TRANSLATE_NOOP("LocationsToolbar", "Free")},
    {"svip", QT_TRANSLATE_NOOP("LocationsToolbar", "Premium")},
    {"favorite", QT_TRANSLATE_NOOP("LocationsToolbar", "Favourites")},
};

// The chosen tab is drawn in bold; every tab asks for its bold width, so the bar keeps one
// width whichever tab is chosen and never clips the last one.
class BoldSafeTabBar : public QTabBar
{
public:
    using QTabBar::QTabBar;

protected:
    bool event(QEvent *event) override
    {
        const bool handled = QTabBar::event(event);
        // A bar made under a style sheet may have measured its tabs before the sheet polished
        // it; setting the elide mode drops the measured widths and lays the tabs out again.
        if (event->type() == QEvent::Polish)
            setElideMode(elideMode());
        return handled;
    }

    QSize tabSizeHint(int index) const override
    {
        QSize size = QTabBar::tabSizeHint(index);
        if (index == currentIndex())
            return size; // the style sheet measured it in bold already
        QFont bold = font();
        bold.setWeight(QFont::DemiBold);
        const QString text = tabText(index);
        size.rwidth() += QFontMetrics(bold).horizontalAdvance(text) -
                         QFontMetrics(font()).horizontalAdvance(text);
        return size;
    }
};

} // namespace

LocationsToolbar::LocationsToolbar(QWidget *parent)
    : QWidget(parent)
    , m_tabs(new BoldSafeTabBar(this))
    , m_sort(new QComboBox(this))
    , m_refresh(new QPushButton(this))
    , m_favorite(new LocationsFavoriteButton(this))
    , m_rows(new QVBoxLayout(this))
    , m_tabRow(new QHBoxLayout)
    , m_actions(new QHBoxLayout)
{
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(8);
    m_rows->addLayout(m_tabRow);
    m_tabRow->setSpacing(8);
    m_actions->setSpacing(8);
    m_actions->addStretch(1);

    m_tabs->setObjectName(QStringLiteral("TovraLocationsTabs"));
    m_tabs->setAccessibleName(tr("Location tabs"));
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_tabs->setUsesScrollButtons(false);
    m_tabs->setElideMode(Qt::ElideNone);
    m_tabs->setFocusPolicy(Qt::StrongFocus);
    for (const TabRow &tab : kTabs) {
        const int index = m_tabs->addTab(tr(tab.label));
        m_tabs->setTabData(index, QString::fromLatin1(tab.word));
    }
    connect(m_tabs, &QTabBar::currentChanged, this, [this] {
        m_tabs->updateGeometry(); // the bold tab moved
        Q_EMIT tabChanged(tab());
    });
    m_tabRow->addWidget(m_tabs);
    m_tabRow->addStretch(1);
    m_tabRow->addLayout(m_actions);

    m_sort->setObjectName(QStringLiteral("TovraLocationsSort"));
    m_sort->setAccessibleName(tr("Sort locations"));
    m_sort->addItem(tr("Service order"), QVariant::fromValue(int(CatalogSort::Daemon)));
    m_sort->addItem(tr("Name"), QVariant::fromValue(int(CatalogSort::Name)));
    m_sort->addItem(tr("Latency"), QVariant::fromValue(int(CatalogSort::Latency)));
    m_sort->setToolTip(tr("Order of the locations within each group"));
    connect(m_sort, &QComboBox::currentIndexChanged, this, [this] { Q_EMIT sortChanged(sort()); });
    m_actions->addWidget(m_sort);

    m_refresh->setObjectName(QStringLiteral("TovraLocationsRefresh"));
    m_refresh->setToolTip(
        WindowShortcuts::toolTip(tr("Fetch the list of locations again and measure their latency"),
                                 WindowShortcuts::Id::RefreshLocations));
    connect(m_refresh, &QPushButton::clicked, this, &LocationsToolbar::refreshRequested);
    m_actions->addWidget(m_refresh);
    // Last, above the rows' own stars at the trailing edge.
    m_actions->addWidget(m_favorite);
    setCooldown(0);
}

void LocationsToolbar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitActions();
}

void LocationsToolbar::fitActions()
{
    // Beside the tabs while both fit (translated tabs and buttons grow), else on a row below:
    // never clipped.
    const bool oneRow =
        width() >= m_tabs->sizeHint().width() + m_tabRow->spacing() + m_actions->sizeHint().width();
    if (oneRow == m_actionsBeside)
        return;
    m_actionsBeside = oneRow;
    (oneRow ? m_rows : m_tabRow)->removeItem(m_actions);
    m_actions->setParent(nullptr);
    (oneRow ? m_tabRow : m_rows)->addLayout(m_actions);
}

QString LocationsToolbar::tab() const
{
    return m_tabs->tabData(m_tabs->currentIndex()).toString();
}

void LocationsToolbar::setTab(const QString &tab)
{
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (m_tabs->tabData(i).toString() == tab)
            m_tabs->setCurrentIndex(i);
    }
}

CatalogSort LocationsToolbar::sort() const
{
    return static_cast<CatalogSort>(m_sort->currentData().toInt());
}

void LocationsToolbar::setSort(CatalogSort sort)
{
    m_sort->setCurrentIndex(m_sort->findData(QVariant::fromValue(int(sort))));
}

void LocationsToolbar::setSearchGlobal(bool global)
{
    if (m_tabs->property("tovraSearchGlobal").toBool() == global)
        return;
    m_tabs->setProperty("tovraSearchGlobal", global);
    m_tabs->style()->unpolish(m_tabs);
    m_tabs->style()->polish(m_tabs);
    m_tabs->updateGeometry();
    m_tabs->update();
}

void LocationsToolbar::setCooldown(int seconds)
{
    m_cooldown = qMax(0, seconds);
    const bool waiting = m_cooldown > 0;
    //: Button, disabled for %1 more seconds before the list can be fetched again
    m_refresh->setText(waiting ? tr("Refresh (%1s)").arg(m_cooldown)
                               //: Button that fetches the list of locations again
                               : tr("Refresh"));
    m_refresh->setEnabled(!waiting);
    m_refresh->setAccessibleName(
        waiting ? tr("Refresh locations, possible again in %1 s").arg(m_cooldown)
                : tr("Refresh locations"));
}

void LocationsToolbar::applyTheme(const ThemeColors &colors)
{
    const qreal ratio = devicePixelRatioF();
    QIcon icon;
    icon.addPixmap(IconTinter::tinted(QStringLiteral(":/icons/refresh-cw.svg"), QSize(16, 16),
                                      colors.color(ThemeColor::TextPrimary), ratio));
    icon.addPixmap(IconTinter::tinted(QStringLiteral(":/icons/refresh-cw.svg"), QSize(16, 16),
                                      colors.color(ThemeColor::DisabledText), ratio),
                   QIcon::Disabled);
    m_refresh->setIcon(icon);
    m_favorite->applyTheme(colors);
}

QString LocationsToolbar::sortKey(CatalogSort sort)
{
    switch (sort) {
    case CatalogSort::Name:
        return QStringLiteral("name");
    case CatalogSort::Latency:
        return QStringLiteral("latency");
    case CatalogSort::Daemon:
        break;
    }
    return QStringLiteral("service");
}

CatalogSort LocationsToolbar::sortFromKey(const QString &key)
{
    if (key == QLatin1String("name"))
        return CatalogSort::Name;
    if (key == QLatin1String("latency"))
        return CatalogSort::Latency;
    return CatalogSort::Daemon;
}
