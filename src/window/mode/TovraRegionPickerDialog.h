#pragma once

#include "RoutingMode.h"
#include "ThemeColors.h"

#include <QDialog>
#include <QStringList>

class CatalogFilterModel;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QStandardItemModel;

// Every country with its flag and name, searchable by the starts of words like the locations
// search, to check the regions a split profile sends the other way.
class TovraRegionPickerDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int RegionCodeRole = Qt::UserRole + 1;
    // Checked regions first, each group in the order of names.
    static constexpr int RegionOrderRole = Qt::UserRole + 2;

    explicit TovraRegionPickerDialog(QWidget *parent = nullptr);

    void setThemeColors(const ThemeColors &colors);
    // What the chosen regions do: leave the tunnel or proxy (go direct), or join it.
    void setContext(SplitFamily family, bool regionsGoDirect);
    void setSelectedRegions(const QStringList &codes);
    // Upper-case codes: those kept in their old order, then the new ones in list order.
    QStringList selectedRegions() const;

    QLineEdit *searchField() const { return m_search; }
    QListView *listView() const { return m_list; }
    CatalogFilterModel *filterModel() const { return m_filter; }
    QStandardItemModel *sourceModel() const { return m_model; }
    QLabel *explanation() const { return m_explanation; }
    QPushButton *saveButton() const { return m_save; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addRegion(const QString &code);
    void updateCount();
    void updateEmptyNote();

    QStandardItemModel *m_model;
    CatalogFilterModel *m_filter;
    QLabel *m_explanation;
    QLineEdit *m_search;
    QListView *m_list;
    QLabel *m_empty;
    QLabel *m_count;
    QPushButton *m_save;
    QStringList m_initial;
};
