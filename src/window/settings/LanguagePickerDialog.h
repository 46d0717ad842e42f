#pragma once

#include "LanguageEntry.h"

#include <QDialog>
#include <QList>

class LanguageFilterModel;
class QDialogButtonBox;
class QLineEdit;
class QListView;
class QStandardItemModel;

// Picks the interface language: "Use system language" on top, then the daemon's supported
// languages by their native names, narrowed by a search. Accepting leaves the choice in
// source() ("system" or "user") and language().
class LanguagePickerDialog : public QDialog
{
    Q_OBJECT

public:
    // currentSource and currentLanguage mark the entry in use.
    LanguagePickerDialog(const QList<LanguageEntry> &languages, const QString &currentSource,
                         const QString &currentLanguage, QWidget *parent = nullptr);

    QString source() const { return m_source; }
    QString language() const { return m_language; }
    LanguageFilterModel *filterModel() const { return m_filter; }
    QLineEdit *searchField() const { return m_search; }
    QListView *listView() const { return m_list; }

    void accept() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void selectFirstVisible();
    void updateButtons();

    QStandardItemModel *m_model;
    LanguageFilterModel *m_filter;
    QLineEdit *m_search;
    QListView *m_list;
    QDialogButtonBox *m_buttons;
    QString m_source;
    QString m_language;
};
