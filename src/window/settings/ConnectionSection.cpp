#include "ConnectionSection.h"

#include "AppState.h"
#include "SettingsChoice.h"
#include "SettingsField.h"
#include "SettingsRow.h"
#include "SettingsValidator.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

ConnectionSection::ConnectionSection(QWidget *parent)
    : SettingsCard(tr("Connection"), parent)
    , m_autoConnect(new SettingsChoice(QStringLiteral("TovraSettingsAutoConnect"), this))
    , m_apiURL(new SettingsField(QStringLiteral("TovraSettingsAPIURL"), tr("API URL"),
                                 QStringLiteral("https://"), this))
    //: Button that saves the API URL typed in the field
    , m_saveAPIURL(new QPushButton(tr("Save"), this))
    //: Button that puts the API URL back to the default address
    , m_resetAPIURL(new QPushButton(tr("Reset to default"), this))
    , m_validation(new QLabel(this))
{
    //: Auto connect choice: connect to nothing when the service starts
    m_autoConnect->addChoice(QStringLiteral("off"), tr("Off"));
    m_autoConnect->addChoice(QStringLiteral("last"), tr("Last location"));
    m_autoConnect->addChoice(QStringLiteral("smart"), tr("Fastest location"));
    addRow(tr("Auto connect"), tr("What the Tovra service connects to when it starts."),
           m_autoConnect);
    connect(m_autoConnect, &SettingsChoice::choiceRequested, this,
            &ConnectionSection::setAutoConnectRequested);

    auto *box = new QWidget(this);
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    m_saveAPIURL->setObjectName(QStringLiteral("TovraSettingsSaveAPIURL"));
    m_saveAPIURL->setAccessibleName(tr("Save API URL"));
    m_resetAPIURL->setObjectName(QStringLiteral("TovraSettingsResetAPIURL"));
    m_resetAPIURL->setAccessibleName(tr("Reset API URL to default"));
    buttons->addWidget(m_saveAPIURL);
    buttons->addWidget(m_resetAPIURL);
    buttons->addStretch(1);
    m_validation->setObjectName(QStringLiteral("TovraSettingsAPIURLValidation"));
    m_validation->setWordWrap(true);
    layout->addWidget(m_apiURL);
    layout->addLayout(buttons);
    layout->addWidget(m_validation);
    SettingsRow *row = addRow(tr("API URL"),
                              tr("Where the Tovra service reaches the account and location "
                                 "servers. Change it only when support asks you to."),
                              nullptr);
    row->addBelow(box);
    connect(m_saveAPIURL, &QPushButton::clicked, this, &ConnectionSection::applyAPIURL);
    connect(m_apiURL, &SettingsField::submitted, this, &ConnectionSection::applyAPIURL);
    connect(m_resetAPIURL, &QPushButton::clicked, this, [this] {
        m_apiURL->markSubmitted();
        Q_EMIT resetAPIURLRequested();
    });
}

void ConnectionSection::refresh(const AppState &state, bool available)
{
    const RuntimeInfo &runtime = state.runtime();
    const bool runtimeKnown = available && runtime.valid;
    m_autoConnect->setDaemonValue(runtimeKnown ? runtime.autoConnect : QString());
    m_autoConnect->setEnabled(runtimeKnown);

    const APIURLConfigInfo &config = state.apiURLConfig();
    const QString url = config.valid ? config.apiURL : runtime.apiURL;
    m_apiURL->setDaemonValue(runtimeKnown ? url : QString());
    for (QWidget *widget : {static_cast<QWidget *>(m_apiURL), static_cast<QWidget *>(m_saveAPIURL),
                            static_cast<QWidget *>(m_resetAPIURL)})
        widget->setEnabled(runtimeKnown);
    QString validation;
    QString role = QStringLiteral("muted");
    if (!runtimeKnown || !config.valid) {
        validation = tr("Validation: %1").arg(unknownText());
    } else if (config.validated) {
        validation = tr("Validated by the Tovra service");
    } else {
        validation = tr("Not validated: the Tovra service saved this address but could not "
                        "confirm it");
        role = QStringLiteral("error");
    }
    m_validation->setText(validation);
    setRole(m_validation, role);
}

void ConnectionSection::applyAPIURL()
{
    const QString error = SettingsValidator::checkAPIURL(m_apiURL->text());
    m_apiURL->showError(error);
    if (!error.isEmpty())
        return;
    m_apiURL->markSubmitted();
    Q_EMIT setAPIURLRequested(m_apiURL->text());
}

void ConnectionSection::settle()
{
    m_autoConnect->settle();
    m_apiURL->settle();
}
