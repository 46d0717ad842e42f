#include "LanguagePickerDialog.h"

#include "FieldClearButton.h"
#include "LanguageFilterModel.h"
#include "TovraDialogTitleBarThemer.h"
#include "TranslationManager.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

QStandardItem *languageItem(const QString &label, const QString &code, const QString &search,
                            const QString &toolTip)
{
    auto *item = new QStandardItem(label);
    item->setEditable(false);
    item->setData(code, LanguageFilterModel::CodeRole);
    item->setData(LanguageFilterModel::fold(search), LanguageFilterModel::SearchRole);
    item->setToolTip(toolTip);
    return item;
}

} // namespace

LanguagePickerDialog::LanguagePickerDialog(const QList<LanguageEntry> &languages,
                                           const QString &currentSource,
                                           const QString &currentLanguage, QWidget *parent)
    : QDialog(parent)
    , m_model(new QStandardItemModel(this))
    , m_filter(new LanguageFilterModel(this))
    , m_search(new QLineEdit(this))
    , m_list(new QListView(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("TovraLanguagePickerDialog"));
    setWindowTitle(tr("Language"));
    setModal(true);
    resize(380, 460);

    const QString system = TranslationManager::systemLanguage();
    const QString systemName = QLocale(system).nativeLanguageName();
    m_model->appendRow(languageItem(systemName.isEmpty()
                                        ? tr("Use system language")
                                        : tr("Use system language (%1)").arg(systemName),
                                    QString(), QString(), tr("Follow the desktop's language")));
    QStandardItem *current = m_model->item(0);
    const QString currentTag = TranslationManager::normalize(currentLanguage);
    for (const LanguageEntry &entry : languages) {
        const QString code = entry.code.trimmed();
        if (code.isEmpty())
            continue;
        const QLocale locale(code);
        const QString english = QLocale::languageToString(locale.language());
        const QString name = entry.name.trimmed().isEmpty() ? code : entry.name.trimmed();
        auto *item =
            languageItem(name, code, name + QLatin1Char(' ') + english + QLatin1Char(' ') + code,
                         english == name ? code : english + QStringLiteral(" · ") + code);
        m_model->appendRow(item);
        if (currentSource != QLatin1String("system") &&
            TranslationManager::normalize(code) == currentTag)
            current = item;
    }
    m_filter->setSourceModel(m_model);

    auto *title = new QLabel(tr("Choose a language"), this);
    title->setObjectName(QStringLiteral("TovraCardTitle"));
    auto *intro = new QLabel(tr("Tovra restarts to show the new language."), this);
    intro->setProperty("tovraRole", QStringLiteral("muted"));
    intro->setWordWrap(true);
    m_search->setObjectName(QStringLiteral("TovraLanguagePickerSearch"));
    m_search->setPlaceholderText(tr("Search languages"));
    m_search->setAccessibleName(tr("Search languages"));
    FieldClearButton::enable(m_search, FieldClearButton::Kind::Search);
    m_list->setObjectName(QStringLiteral("TovraLanguagePickerList"));
    m_list->setAccessibleName(tr("Languages"));
    m_list->setModel(m_filter);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    //: Button that switches to the chosen language
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Use language"));
    // Plain text buttons, like every other dialog of the app.
    for (QAbstractButton *button : m_buttons->buttons())
        button->setIcon(QIcon());

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(10);
    layout->addWidget(title);
    layout->addWidget(intro);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_buttons);

    m_list->setCurrentIndex(m_filter->mapFromSource(current->index()));
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter->setSearch(text);
        if (!m_list->currentIndex().isValid() || m_list->currentIndex().row() == 0)
            selectFirstVisible();
        updateButtons();
    });
    // Arrow keys in the search move through the list, so typing and picking need no mouse.
    m_search->installEventFilter(this);
    connect(m_list, &QListView::activated, this, &LanguagePickerDialog::accept);
    connect(m_search, &QLineEdit::returnPressed, this, &LanguagePickerDialog::accept);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &LanguagePickerDialog::updateButtons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &LanguagePickerDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &LanguagePickerDialog::reject);
    m_search->setFocus();
    updateButtons();
    TovraDialogTitleBarThemer::attach(this);
}

bool LanguagePickerDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        switch (key->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_list, event);
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void LanguagePickerDialog::selectFirstVisible()
{
    // The first row is always the system choice; while searching, the first match is likelier.
    const int row = m_filter->rowCount() > 1 && !m_search->text().trimmed().isEmpty() ? 1 : 0;
    m_list->setCurrentIndex(m_filter->index(row, 0));
}

void LanguagePickerDialog::updateButtons()
{
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_list->currentIndex().isValid());
}

void LanguagePickerDialog::accept()
{
    const QModelIndex index = m_list->currentIndex();
    if (!index.isValid())
        return;
    const QString code = index.data(LanguageFilterModel::CodeRole).toString();
    if (code.isEmpty()) {
        // The daemon follows the desktop; tell it which language that is right away.
        m_source = QStringLiteral("system");
        m_language = TranslationManager::systemLanguage();
    } else {
        m_source = QStringLiteral("user");
        m_language = code;
    }
    QDialog::accept();
}
