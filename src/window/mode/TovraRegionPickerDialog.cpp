#include "TovraRegionPickerDialog.h"

#include "BidiText.h"
#include "CatalogFilterModel.h"
#include "Countries.h"
#include "FieldClearButton.h"
#include "LocationRoles.h"
#include "RegionCheckDelegate.h"
#include "ThemeEngine.h"
#include "TovraDialogTitleBarThemer.h"

#include <QCollator>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSet>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Where a region stands in the order of names, which the sort role starts from.
constexpr int NameOrderRole = Qt::UserRole + 3;

} // namespace

TovraRegionPickerDialog::TovraRegionPickerDialog(QWidget *parent)
    : QDialog(parent)
    , m_model(new QStandardItemModel(this))
    , m_filter(new CatalogFilterModel(this))
    , m_explanation(new QLabel(this))
    , m_search(new QLineEdit(this))
    , m_list(new QListView(this))
    , m_empty(new QLabel(this))
    , m_count(new QLabel(this))
    //: Button
    , m_save(new QPushButton(tr("Save"), this))
{
    setObjectName(QStringLiteral("TovraRegionPickerDialog"));
    setWindowTitle(tr("Choose regions"));
    setModal(true);
    resize(460, 560);

    auto *title = new QLabel(tr("Choose regions"), this);
    title->setObjectName(QStringLiteral("TovraCardTitle"));
    m_explanation->setObjectName(QStringLiteral("TovraRegionPickerExplanation"));
    m_explanation->setWordWrap(true);

    m_search->setObjectName(QStringLiteral("TovraRegionPickerSearch"));
    m_search->setPlaceholderText(tr("Search countries"));
    m_search->setAccessibleName(tr("Search countries"));
    FieldClearButton::enable(m_search, FieldClearButton::Kind::Search);
    m_search->installEventFilter(this);

    // Listed by the name the user reads, in the user's language.
    QStringList codes = countryCodes();
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(codes.begin(), codes.end(), [&](const QString &a, const QString &b) {
        return collator.compare(countryName(a), countryName(b)) < 0;
    });
    for (const QString &code : std::as_const(codes))
        addRegion(code);

    m_filter->setSourceModel(m_model);
    m_list->setModel(m_filter);
    m_list->setItemDelegate(new RegionCheckDelegate(m_list));
    m_list->setAccessibleName(tr("Countries"));
    m_list->setUniformItemSizes(true);
    m_list->setIconSize(QSize(24, 16));
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);

    m_empty->setProperty("tovraRole", QStringLiteral("muted"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->hide();
    m_count->setProperty("tovraRole", QStringLiteral("muted"));

    //: Button
    auto *cancel = new QPushButton(tr("Cancel"), this);
    m_save->setObjectName(QStringLiteral("TovraRegionPickerSave"));
    m_save->setDefault(true);
    cancel->setAutoDefault(false);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_count, 1);
    buttons->addWidget(cancel);
    buttons->addWidget(m_save);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 20);
    layout->setSpacing(10);
    layout->addWidget(title);
    layout->addWidget(m_explanation);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_empty);
    layout->addLayout(buttons);

    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter->setFilterText(text);
        updateEmptyNote();
    });
    connect(m_model, &QStandardItemModel::itemChanged, this, &TovraRegionPickerDialog::updateCount);
    connect(m_save, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    setContext(SplitFamily::Tunnel, true);
    updateCount();
    TovraDialogTitleBarThemer::attach(this);
}

void TovraRegionPickerDialog::setThemeColors(const ThemeColors &colors)
{
    ThemeEngine::applyToWindow(this, colors);
}

void TovraRegionPickerDialog::addRegion(const QString &code)
{
    const QString name = countryName(code);
    auto *item = new QStandardItem(name);
    item->setEditable(false);
    item->setCheckable(true);
    item->setCheckState(Qt::Unchecked);
    item->setData(code.trimmed().toUpper(), RegionCodeRole);
    const QPixmap flag = countryFlag(code);
    if (!flag.isNull())
        item->setData(flag, Qt::DecorationRole);
    // The filter matches lower-case words: the name as shown and the code.
    item->setData(QString(name + u' ' + code).toLower(), LocationSearchTextRole);
    item->setData(name, Qt::AccessibleTextRole);
    item->setData(m_model->rowCount(), NameOrderRole);
    m_model->appendRow(item);
}

void TovraRegionPickerDialog::setContext(SplitFamily family, bool regionsGoDirect)
{
    const bool tunnel = family == SplitFamily::Tunnel;
    if (regionsGoDirect)
        m_explanation->setText(
            tunnel ? tr("Traffic to the regions you check goes direct, outside the tunnel. "
                        "Everything else goes through the tunnel.")
                   : tr("Traffic to the regions you check goes direct, not through the proxy. "
                        "Everything else goes through the proxy."));
    else
        m_explanation->setText(
            tunnel ? tr("Traffic to the regions you check goes through the tunnel. Everything "
                        "else goes direct.")
                   : tr("Traffic to the regions you check goes through the proxy. Everything "
                        "else goes direct."));
}

void TovraRegionPickerDialog::setSelectedRegions(const QStringList &codes)
{
    m_initial.clear();
    for (const QString &code : codes) {
        const QString upper = code.trimmed().toUpper();
        if (!upper.isEmpty() && !m_initial.contains(upper))
            m_initial.append(upper);
    }
    QSet<QString> present;
    for (int row = 0; row < m_model->rowCount(); ++row)
        present.insert(m_model->item(row)->data(RegionCodeRole).toString());
    // A region this list does not know stays, so that saving does not drop it.
    for (const QString &code : std::as_const(m_initial)) {
        if (!present.contains(code))
            addRegion(code.toLower());
    }
    // The regions in use open at the top, where they can be seen; the name order stays below.
    constexpr int kUnchecked = 1 << 20;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        QStandardItem *item = m_model->item(row);
        const bool checked = m_initial.contains(item->data(RegionCodeRole).toString());
        item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        const int nameOrder = item->data(NameOrderRole).toInt();
        item->setData(checked ? nameOrder : nameOrder + kUnchecked, RegionOrderRole);
    }
    m_model->setSortRole(RegionOrderRole);
    m_model->sort(0);
    m_search->clear();
    m_list->scrollToTop();
    updateCount();
}

QStringList TovraRegionPickerDialog::selectedRegions() const
{
    QStringList checked;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QStandardItem *item = m_model->item(row);
        if (item->checkState() == Qt::Checked)
            checked.append(item->data(RegionCodeRole).toString());
    }
    QStringList result;
    for (const QString &code : m_initial) {
        if (checked.contains(code))
            result.append(code);
    }
    for (const QString &code : std::as_const(checked)) {
        if (!result.contains(code))
            result.append(code);
    }
    return result;
}

void TovraRegionPickerDialog::updateCount()
{
    int checked = 0;
    for (int row = 0; row < m_model->rowCount(); ++row)
        checked += m_model->item(row)->checkState() == Qt::Checked ? 1 : 0;
    m_count->setText(tr("Checked: %1").arg(checked));
}

void TovraRegionPickerDialog::updateEmptyNote()
{
    const bool empty = m_filter->rowCount() == 0;
    m_empty->setText(
        empty ? tr("No country matches \u201c%1\u201d.").arg(isolated(m_search->text().trimmed()))
              : QString());
    m_empty->setVisible(empty);
}

bool TovraRegionPickerDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        // Enter or Down goes on to the matches instead of closing the dialog.
        if ((key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down) &&
            m_filter->rowCount() > 0) {
            m_list->setFocus(Qt::TabFocusReason);
            m_list->setCurrentIndex(m_filter->index(0, 0));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
