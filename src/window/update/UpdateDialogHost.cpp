#include "UpdateDialogHost.h"

#include "ThemeEngine.h"
#include "UpdateDialog.h"

UpdateDialogHost::UpdateDialogHost(ThemeSource theme, QObject *parent)
    : QObject(parent)
    , m_theme(std::move(theme))
{}

UpdateDialogHost::~UpdateDialogHost()
{
    delete m_own.data();
}

void UpdateDialogHost::setThemedDialog(QWidget *dialog)
{
    m_themed = dialog;
    applyTheme();
}

UpdateDialog *UpdateDialogHost::dialog()
{
    if (m_own) {
        return m_own;
    }
    // No parent: a window that is released on hide must not take the dialog with it.
    auto *dialog = new UpdateDialog;
    m_own = dialog;
    connect(dialog, &UpdateDialog::downloadRequested, this, &UpdateDialogHost::downloadRequested);
    connect(dialog, &UpdateDialog::cancelDownloadRequested, this,
            &UpdateDialogHost::cancelDownloadRequested);
    connect(dialog, &UpdateDialog::exitRequested, this, &UpdateDialogHost::exitRequested);
    setThemedDialog(dialog);
    return dialog;
}

void UpdateDialogHost::show(const QWidget *window)
{
    UpdateDialog *shown = dialog();
    m_returnWithWindow = false;
    if (!shown->isVisible() && window && window->isVisible()) {
        // It has no parent to be placed by: open it over the window.
        shown->adjustSize();
        shown->move(window->frameGeometry().center() - shown->rect().center());
    }
    shown->show();
    shown->raise();
    shown->activateWindow();
}

void UpdateDialogHost::hide()
{
    m_returnWithWindow = false;
    if (m_own) {
        m_own->hide();
    }
}

void UpdateDialogHost::hideWithWindow()
{
    if (m_own && m_own->isVisible()) {
        m_own->hide();
        m_returnWithWindow = true;
    }
}

void UpdateDialogHost::returnWithWindow(const QWidget *window)
{
    if (m_returnWithWindow) {
        m_returnWithWindow = false;
        show(window);
    }
}

void UpdateDialogHost::applyTheme()
{
    if (m_themed) {
        ThemeEngine::applyToWindow(m_themed, m_theme());
    }
}
