#include "QuickEntryField.h"

#include "CatalogFilterModel.h"
#include "FieldClearButton.h"
#include "QuickEntryModel.h"
#include "QuickEntryPopup.h"
#include "RecentActivityStore.h"
#include "ThemeColors.h"
#include "WindowShortcuts.h"

#include <QKeyEvent>
#include <QStyle>
#include <QTimer>

namespace {

constexpr int kBottomMargin = 8;

} // namespace

QuickEntryField::QuickEntryField(RecentActivityStore *recent, QWidget *overlay, QWidget *parent)
    : QLineEdit(parent)
    , m_recent(recent)
    , m_overlay(overlay)
    , m_filter(new CatalogFilterModel(this))
    , m_model(new QuickEntryModel(this))
    , m_debounce(new QTimer(this))
{
    setObjectName(QStringLiteral("TovraVPNSearch"));
    setPlaceholderText(tr("Search for a country, city or location"));
    setAccessibleName(tr("Quick connect search"));
    setToolTip(WindowShortcuts::toolTip(accessibleName(), WindowShortcuts::Id::Find));
    setProperty("tovraPopupOpen", false);

    m_debounce->setSingleShot(true);
    m_debounce->setInterval(kDebounceMs);
    connect(m_debounce, &QTimer::timeout, this, &QuickEntryField::refreshRows);
    // Typing opens the list; text set by the program does not.
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (!isPopupOpen())
            openPopup();
    });
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        // The clear button shows only over text. Asked for before, the style's icon for it
        // reads the desktop's icon theme index while the window is being built.
        if (!text.isEmpty() && !isClearButtonEnabled()) {
            FieldClearButton::enable(this, FieldClearButton::Kind::Search);
            Q_EMIT searchStarted();
        }
        // Emptying the field brings the recent lists back at once; a search waits for a pause.
        if (text.trimmed().isEmpty()) {
            m_debounce->stop();
            refreshRows();
        } else {
            m_debounce->start();
        }
    });
    if (m_recent) {
        const auto recentChanged = [this] {
            if (text().trimmed().isEmpty())
                refreshRows();
        };
        connect(m_recent, &RecentActivityStore::recentSearchesChanged, this, recentChanged);
        connect(m_recent, &RecentActivityStore::recentLocationsChanged, this, recentChanged);
    }
    refreshRows();
}

void QuickEntryField::setCatalogModel(QAbstractItemModel *catalog)
{
    m_filter->setSourceModel(catalog);
    if (catalog) {
        // A catalogue that changes under an open search shows the new matches.
        const auto rerun = [this] {
            if (!text().trimmed().isEmpty() && isPopupOpen())
                m_debounce->start();
        };
        connect(catalog, &QAbstractItemModel::modelReset, this, rerun);
        connect(catalog, &QAbstractItemModel::rowsInserted, this, rerun);
        connect(catalog, &QAbstractItemModel::rowsRemoved, this, rerun);
    }
}

void QuickEntryField::applyTheme(const ThemeColors &colors)
{
    m_model->setMutedColor(colors.color(ThemeColor::TextMuted));
}

QuickEntryPopup *QuickEntryField::popup()
{
    // Hidden until the field is used: made with the window, it would be built and styled
    // before the window's first paint for nothing.
    if (!m_popup) {
        m_popup = new QuickEntryPopup(m_model, m_overlay);
        connect(m_popup, &QuickEntryPopup::rowActivated, this, &QuickEntryField::activateRow);
        m_popup->setCurrentRow(firstCurrentRow());
    }
    return m_popup;
}

bool QuickEntryField::isPopupOpen() const
{
    return m_popup && m_popup->isVisible();
}

bool QuickEntryField::isSearchPending() const
{
    return m_debounce->isActive();
}

void QuickEntryField::openPopup()
{
    if (!isVisible())
        return;
    place();
    popup()->show();
    setPopupOpenProperty(true);
}

void QuickEntryField::closePopup()
{
    m_debounce->stop();
    if (m_popup)
        m_popup->hide();
    setPopupOpenProperty(false);
}

void QuickEntryField::setPopupOpenProperty(bool open)
{
    if (property("tovraPopupOpen").toBool() == open)
        return;
    setProperty("tovraPopupOpen", open);
    style()->unpolish(this);
    style()->polish(this);
}

void QuickEntryField::place()
{
    popup()->placeUnder(this, m_overlay->height() - kBottomMargin);
}

void QuickEntryField::refreshRows()
{
    const QString search = text().trimmed();
    if (search.isEmpty() || !m_filter->sourceModel()) {
        m_filter->setFilterText(QString());
        m_model->showRecent(m_recent ? m_recent->recentSearches() : QStringList(),
                            m_recent ? m_recent->recentLocations() : QList<RecentLocation>());
    } else {
        m_filter->setFilterText(search);
        m_model->showMatches(*m_filter, search);
    }
    if (m_popup)
        m_popup->setCurrentRow(firstCurrentRow());
    if (isPopupOpen())
        place();
}

int QuickEntryField::firstCurrentRow() const
{
    // While typing the best match is one Enter away; the recent lists wait for an arrow key.
    return text().trimmed().isEmpty() ? -1 : m_model->nextSelectable(-1, 1);
}

void QuickEntryField::moveCurrent(int step)
{
    if (!isPopupOpen()) {
        openPopup();
        return;
    }
    const int current = m_popup->currentRow();
    const int next =
        m_model->nextSelectable(current < 0 && step < 0 ? m_model->rowCount() : current, step);
    if (next >= 0)
        m_popup->setCurrentRow(next);
}

void QuickEntryField::activateRow(int row)
{
    if (!m_model->isSelectable(row))
        return;
    const QModelIndex index = m_model->index(row);
    const auto kind = QuickEntryModel::Kind(index.data(QuickEntryModel::KindRole).toInt());
    const QString target = index.data(QuickEntryModel::TargetRole).toString();
    const QString label = index.data(QuickEntryModel::LabelRole).toString();
    if (kind == QuickEntryModel::Kind::Search) {
        // A recent search is typed again, and its matches shown at once.
        setText(target);
        m_debounce->stop();
        refreshRows();
        return;
    }
    if (kind == QuickEntryModel::Kind::Group || kind == QuickEntryModel::Kind::Node) {
        if (m_recent)
            m_recent->addSearch(text());
    }
    closePopup();
    if (kind == QuickEntryModel::Kind::Group)
        Q_EMIT groupChosen(target, label);
    else
        Q_EMIT nodeChosen(target, label, index.data(QuickEntryModel::FlagCodeRole).toString());
    setText(QString());
    m_debounce->stop();
    refreshRows();
}

void QuickEntryField::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        moveCurrent(1);
        return;
    case Qt::Key_Up:
        moveCurrent(-1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        if (!isPopupOpen()) {
            openPopup();
            return;
        }
        // Enter right after typing must not act on the rows of the previous text.
        if (m_debounce->isActive()) {
            m_debounce->stop();
            refreshRows();
        }
        int row = m_popup->currentRow();
        if (row < 0 && !text().trimmed().isEmpty())
            row = m_model->nextSelectable(-1, 1);
        activateRow(row);
        return;
    }
    case Qt::Key_Escape:
        if (isPopupOpen()) {
            closePopup();
            return;
        }
        break;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

void QuickEntryField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        openPopup();
}

void QuickEntryField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // A menu or another window taking the focus for a moment leaves the list as it is.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        closePopup();
}

void QuickEntryField::mousePressEvent(QMouseEvent *event)
{
    QLineEdit::mousePressEvent(event);
    if (!isPopupOpen())
        openPopup();
}

void QuickEntryField::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    if (isPopupOpen())
        place();
}
