#pragma once

#include "SettingsCard.h"

#include "LanguageConfigInfo.h"

#include <functional>

class GuiPreferences;
class LanguagePickerDialog;
class QLabel;
class QPushButton;
class SettingsChoice;
class SettingsRow;
class ToggleSwitch;

// What belongs to this client rather than the daemon: starting with the session, showing the
// window at start, the appearance, and the interface language (kept by the daemon).
class AppSection : public SettingsCard
{
    Q_OBJECT

public:
    // Runs the language picker; replaceable so that tests drive the dialog without exec().
    using PickerRunner = std::function<bool(LanguagePickerDialog *dialog)>;

    explicit AppSection(GuiPreferences *preferences, QWidget *parent = nullptr);

    void refresh(const AppState &state, bool available) override;
    // The appearance choice follows the stored preference.
    void showAppearance();
    void setPickerRunner(PickerRunner runner) { m_runPicker = std::move(runner); }
    void openLanguagePicker();

Q_SIGNALS:
    void setLanguageRequested(QString source, QString language);
    void appearanceChangeRequested(QString appearance);
    // The picker is about to be shown; the page themes it like the window.
    void languagePickerCreated(LanguagePickerDialog *dialog);
    void keyboardShortcutsRequested();

private:
    void launchAtLoginRequested(bool enabled);
    void showLaunchAtLogin();
    QString languageName(const QString &tag) const;

    GuiPreferences *m_preferences;
    ToggleSwitch *m_launchAtLogin;
    QLabel *m_launchError;
    ToggleSwitch *m_showOnLaunch;
    SettingsChoice *m_appearance;
    SettingsRow *m_languageRow;
    QPushButton *m_changeLanguage;
    LanguageConfigInfo m_languages;
    PickerRunner m_runPicker;
};
