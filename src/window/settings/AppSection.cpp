#include "AppSection.h"

#include "AppState.h"
#include "GuiAutostart.h"
#include "GuiPreferences.h"
#include "LanguagePickerDialog.h"
#include "SettingsChoice.h"
#include "SettingsRow.h"
#include "ToggleSwitch.h"
#include "TranslationManager.h"

#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

AppSection::AppSection(GuiPreferences *preferences, QWidget *parent)
    : SettingsCard(tr("App"), parent)
    , m_preferences(preferences)
    , m_launchAtLogin(new ToggleSwitch(this))
    , m_launchError(new QLabel(this))
    , m_showOnLaunch(new ToggleSwitch(this))
    , m_appearance(new SettingsChoice(QStringLiteral("TovraSettingsAppearance"), this))
    //: Button that opens the language picker
    , m_changeLanguage(new QPushButton(tr("Change…"), this))
    , m_runPicker([](LanguagePickerDialog *dialog) { return dialog->exec() == QDialog::Accepted; })
{
    m_launchAtLogin->setObjectName(QStringLiteral("TovraSettingsLaunchAtLogin"));
    SettingsRow *loginRow =
        addRow(tr("Launch at login"),
               tr("Start Tovra in the tray when you sign in to the desktop."), m_launchAtLogin);
    m_launchError->setObjectName(QStringLiteral("TovraSettingsLaunchAtLoginError"));
    m_launchError->setProperty("tovraRole", QStringLiteral("error"));
    m_launchError->setWordWrap(true);
    m_launchError->hide();
    loginRow->addBelow(m_launchError);
    connect(m_launchAtLogin, &ToggleSwitch::toggleRequested, this,
            &AppSection::launchAtLoginRequested);

    m_showOnLaunch->setObjectName(QStringLiteral("TovraSettingsShowOnLaunch"));
    addRow(tr("Show window at launch"),
           tr("Open this window when Tovra starts; otherwise only the tray icon appears."),
           m_showOnLaunch);
    connect(m_showOnLaunch, &ToggleSwitch::toggleRequested, this, [this](bool show) {
        if (m_preferences)
            m_preferences->setShowOnLaunch(show);
        m_showOnLaunch->setChecked(m_preferences ? m_preferences->showOnLaunch() : show);
    });

    m_appearance->addChoice(QStringLiteral("system"), tr("Same as desktop"));
    m_appearance->addChoice(QStringLiteral("light"), tr("Light"));
    m_appearance->addChoice(QStringLiteral("dark"), tr("Dark"));
    addRow(tr("Appearance"), tr("Light, dark, or following the desktop."), m_appearance);
    connect(m_appearance, &SettingsChoice::choiceRequested, this, [this](const QString &value) {
        Q_EMIT appearanceChangeRequested(value);
        showAppearance();
    });

    m_changeLanguage->setObjectName(QStringLiteral("TovraSettingsLanguage"));
    m_changeLanguage->setAccessibleName(tr("Change language"));
    m_languageRow = addRow(tr("Language"), QString(), m_changeLanguage);
    connect(m_changeLanguage, &QPushButton::clicked, this, &AppSection::openLanguagePicker);

    showLaunchAtLogin();
    m_showOnLaunch->setChecked(m_preferences ? m_preferences->showOnLaunch() : true);
    showAppearance();
}

void AppSection::refresh(const AppState &state, bool available)
{
    showLaunchAtLogin();
    m_showOnLaunch->setChecked(m_preferences ? m_preferences->showOnLaunch() : true);
    showAppearance();

    m_languages = state.languageConfig();
    const RuntimeInfo &runtime = state.runtime();
    const QString source = m_languages.valid ? m_languages.source : runtime.languageSource;
    const QString effective =
        m_languages.valid ? m_languages.effectiveLanguage : runtime.effectiveLanguage;
    const bool known = available && (m_languages.valid || runtime.valid);
    QString hint;
    if (!known || effective.isEmpty())
        hint = unknownText();
    else if (source.trimmed() == QLatin1String("system"))
        hint = tr("%1, following the desktop").arg(languageName(effective));
    else
        hint = languageName(effective);
    m_languageRow->setHint(hint);
    m_changeLanguage->setEnabled(available && m_languages.valid);
}

QString AppSection::languageName(const QString &tag) const
{
    const QString normalized = TranslationManager::normalize(tag);
    for (const LanguageEntry &entry : m_languages.supportedLanguages) {
        if (TranslationManager::normalize(entry.code) == normalized && !entry.name.isEmpty())
            return entry.name;
    }
    const QString native = QLocale(tag).nativeLanguageName();
    return native.isEmpty() ? tag : native;
}

void AppSection::showAppearance()
{
    m_appearance->setDaemonValue(m_preferences ? m_preferences->appearance()
                                               : QStringLiteral("system"));
}

void AppSection::showLaunchAtLogin()
{
    // The entry on disk is the truth: the preference only says what start-up aims for.
    m_launchAtLogin->setChecked(QFileInfo::exists(GuiAutostart().entryPath()));
}

void AppSection::launchAtLoginRequested(bool enabled)
{
    const GuiAutostart autostart;
    QString reason;
    if (autostart.reconcile(enabled, &reason)) {
        if (m_preferences)
            m_preferences->setLaunchAtLogin(enabled);
        m_launchError->hide();
    } else {
        m_launchError->setText(tr("Could not update login startup") +
                               (reason.isEmpty() ? QString() : QLatin1Char('\n') + reason));
        m_launchError->show();
    }
    showLaunchAtLogin();
}

void AppSection::openLanguagePicker()
{
    if (!m_languages.valid)
        return;
    LanguagePickerDialog dialog(m_languages.supportedLanguages, m_languages.source,
                                m_languages.language, window());
    Q_EMIT languagePickerCreated(&dialog);
    if (!m_runPicker(&dialog))
        return;
    Q_EMIT setLanguageRequested(dialog.source(), dialog.language());
}
