#include "PageStack.h"

#include <QTimer>

#include <algorithm>
#include <utility>

PageStack::PageStack(QWidget *parent)
    : QStackedWidget(parent)
{
    // The hints follow the page, so the enclosing layout must ask again on each switch.
    connect(this, &QStackedWidget::currentChanged, this, [this] { updateGeometry(); });
}

int PageStack::addPage(Factory factory)
{
    m_factories.resize(size_t(count())); // pages added directly are built already
    m_factories.push_back(std::move(factory));
    return addWidget(new QWidget(this));
}

QWidget *PageStack::page(int index)
{
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    if (isBuilt(index)) {
        return widget(index);
    }
    const Factory factory = std::exchange(m_factories[size_t(index)], Factory());
    QWidget *placeholder = widget(index);
    const bool current = currentIndex() == index;
    QWidget *built = factory(this);
    insertWidget(index, built);
    removeWidget(placeholder);
    delete placeholder;
    if (current) {
        setCurrentIndex(index);
    }
    Q_EMIT pageBuilt(index, built);
    return built;
}

bool PageStack::isBuilt(int index) const
{
    return index >= 0 && (size_t(index) >= m_factories.size() || !m_factories[size_t(index)]);
}

bool PageStack::allBuilt() const
{
    return std::none_of(m_factories.cbegin(), m_factories.cend(),
                        [](const Factory &factory) { return bool(factory); });
}

void PageStack::buildRemainingPages()
{
    if (m_buildScheduled) {
        return;
    }
    m_buildScheduled = true;
    QTimer::singleShot(0, this, &PageStack::buildNextPage);
}

void PageStack::buildNextPage()
{
    for (int index = 0; index < count(); ++index) {
        if (!isBuilt(index)) {
            page(index);
            if (!allBuilt()) {
                QTimer::singleShot(0, this, &PageStack::buildNextPage);
            }
            return;
        }
    }
}

QSize PageStack::sizeHint() const
{
    const QWidget *shown = currentWidget();
    return shown ? shown->sizeHint() : QStackedWidget::sizeHint();
}

QSize PageStack::minimumSizeHint() const
{
    const QWidget *shown = currentWidget();
    return shown ? shown->minimumSizeHint().expandedTo(shown->minimumSize())
                 : QStackedWidget::minimumSizeHint();
}

bool PageStack::hasHeightForWidth() const
{
    const QWidget *shown = currentWidget();
    return shown ? shown->hasHeightForWidth() : QStackedWidget::hasHeightForWidth();
}

int PageStack::heightForWidth(int width) const
{
    const QWidget *shown = currentWidget();
    return shown ? shown->heightForWidth(width) : QStackedWidget::heightForWidth(width);
}
