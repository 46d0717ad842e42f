#include "QuickEntryPopup.h"

#include "QuickEntryModel.h"

#include <QListView>
#include <QVBoxLayout>

namespace {

constexpr int kMinimumHeight = 80;
// The list's own frame and the popup's border, up to 3px wide where the desktop asks for
// contrast.
constexpr int kFrameAllowance = 16;

} // namespace

QuickEntryPopup::QuickEntryPopup(QuickEntryModel *model, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_view(new QListView(this))
{
    setObjectName(QStringLiteral("TovraVPNSearchPopup"));
    setFocusPolicy(Qt::NoFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    m_view->setObjectName(QStringLiteral("TovraVPNSearchResults"));
    m_view->setAccessibleName(tr("Search results"));
    m_view->setModel(model);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setUniformItemSizes(true);
    m_view->setIconSize(QSize(24, 18));
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout->addWidget(m_view);
    connect(m_view, &QListView::clicked, this, [this](const QModelIndex &index) {
        if (m_model->isSelectable(index.row()))
            Q_EMIT rowActivated(index.row());
    });
    hide();
}

int QuickEntryPopup::currentRow() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() && m_model->isSelectable(current.row()) ? current.row() : -1;
}

void QuickEntryPopup::setCurrentRow(int row)
{
    if (row < 0) {
        m_view->clearSelection();
        m_view->setCurrentIndex(QModelIndex());
        return;
    }
    const QModelIndex index = m_model->index(row);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void QuickEntryPopup::placeUnder(const QWidget *anchor, int bottomLimit)
{
    const QPoint topLeft = anchor->mapTo(parentWidget(), QPoint(0, anchor->height() - 1));
    const int rows = m_model->rowCount();
    const int rowHeight = qMax(m_view->sizeHintForRow(0), 28);
    const int wanted = rows * rowHeight + kFrameAllowance;
    const int room = qMax(kMinimumHeight, bottomLimit - topLeft.y());
    setGeometry(topLeft.x(), topLeft.y(), anchor->width(), qMin(wanted, room));
    raise();
}
