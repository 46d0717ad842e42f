#pragma once

#include "ThemeColors.h"

#include <QObject>
#include <QPointer>

#include <functional>

class UpdateDialog;
class QWidget;

// Keeps the update dialog apart from the main window: made on first use and owned here, so a
// download's progress survives the window closing. It hides with the window and comes back
// with it, and is themed like the window.
class UpdateDialogHost : public QObject
{
    Q_OBJECT

public:
    // Asked each time the dialog is themed, so it always follows the window's appearance.
    using ThemeSource = std::function<ThemeColors()>;

    explicit UpdateDialogHost(ThemeSource theme, QObject *parent = nullptr);
    ~UpdateDialogHost() override;

    // Themes another dialog (or the own one) like the window, now and on every applyTheme().
    void setThemedDialog(QWidget *dialog);
    UpdateDialog *dialog();
    // Shows the dialog, over the window when that is on screen.
    void show(const QWidget *window);
    // Hides it for good: it does not come back with the window.
    void hide();
    // The window hides: a dialog on screen goes with it and is remembered for returnWithWindow.
    void hideWithWindow();
    void returnWithWindow(const QWidget *window);
    void applyTheme();

Q_SIGNALS:
    void downloadRequested();
    void cancelDownloadRequested();
    void exitRequested();

private:
    ThemeSource m_theme;
    QPointer<QWidget> m_themed;
    QPointer<UpdateDialog> m_own;
    // It was on screen when the window hid.
    bool m_returnWithWindow = false;
};
