#pragma once

#include <QLineEdit>

class CatalogFilterModel;
class QAbstractItemModel;
class QTimer;
class QuickEntryModel;
class QuickEntryPopup;
class RecentActivityStore;
class ThemeColors;

// The VPN page's search field with its drop-down: recent searches and locations while empty,
// the catalogue's matches while typing (after a short pause). Up and Down move through the
// rows, Enter picks one, Escape closes the list.
class QuickEntryField : public QLineEdit
{
    Q_OBJECT

public:
    static constexpr int kDebounceMs = 150;

    // The popup is a child of `overlay`, drawn over whatever lies under the field.
    QuickEntryField(RecentActivityStore *recent, QWidget *overlay, QWidget *parent = nullptr);

    // The catalogue tree the matches come from (not owned).
    void setCatalogModel(QAbstractItemModel *catalog);
    void applyTheme(const ThemeColors &colors);

    void openPopup();
    // Stops a pending search and hides the list.
    void closePopup();
    bool isPopupOpen() const;
    bool isSearchPending() const;

    QuickEntryModel *entryModel() const { return m_model; }
    // The list under the field, made when first opened.
    QuickEntryPopup *popup();

Q_SIGNALS:
    // The first text typed: the catalogue is needed from now on.
    void searchStarted();
    void nodeChosen(const QString &nodeId, const QString &label, const QString &flagCode);
    void groupChosen(const QString &selector, const QString &label);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void refreshRows();
    int firstCurrentRow() const;
    void activateRow(int row);
    void moveCurrent(int step);
    void setPopupOpenProperty(bool open);
    void place();

    RecentActivityStore *m_recent;
    QWidget *m_overlay;
    CatalogFilterModel *m_filter;
    QuickEntryModel *m_model;
    QuickEntryPopup *m_popup = nullptr;
    QTimer *m_debounce;
};
