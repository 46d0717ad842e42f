#pragma once

#include "ThemeColors.h"

#include <QWidget>

class ConfirmDialog;
class LocationItemDelegate;
class NotificationHost;
class QAction;
class QBoxLayout;
class QFrame;
class QToolButton;
class QVBoxLayout;
class ToggleSwitch;

// Every custom widget and dialog on one page, for looking at themes and directions.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    GalleryWindow(Appearance appearance, Qt::LayoutDirection direction,
                  Contrast contrast = Contrast::Normal, QWidget *parent = nullptr);

    void applyTheme(Appearance appearance, Qt::LayoutDirection direction);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *buildSidebar();
    QWidget *buildControls();
    QWidget *buildSwitchCard();
    QWidget *buildActionCard();
    QWidget *buildLabelCard();
    QWidget *buildFlowCard();
    QWidget *buildLocationsCard();
    QWidget *buildNotificationCard();
    QWidget *buildDialogCard();
    static QFrame *card(const QString &title, QVBoxLayout **body);
    void placeNotification();

    Appearance m_appearance;
    Contrast m_contrast;
    QList<QToolButton *> m_sidebarButtons;
    QList<ConfirmDialog *> m_dialogs;
    QList<NotificationHost *> m_samples;
    QWidget *m_content = nullptr;
    NotificationHost *m_host = nullptr;
    LocationItemDelegate *m_delegate = nullptr;
    QAction *m_searchAction = nullptr;
    ToggleSwitch *m_darkSwitch = nullptr;
    ToggleSwitch *m_rtlSwitch = nullptr;
    ToggleSwitch *m_contrastSwitch = nullptr;
};
