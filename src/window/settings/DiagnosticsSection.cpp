#include "DiagnosticsSection.h"

#include "AppState.h"
#include "BidiText.h"
#include "SettingsRow.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

// The daemon's paths in the order the record lists them, with what each one is.
struct PathField
{
    const char *label;
    QString ConfigPaths::*member;
};

const PathField kPaths[] = {
    //: Label of a folder path: where the service keeps its configuration
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "Configuration"), &ConfigPaths::configDir},
    //: Label of a folder path: where the service keeps its running files (socket, PID file);
    //: not a duration
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "Runtime"), &ConfigPaths::runtimeDir},
    //: Label of a folder path: the service's log folder
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "Logs"), &ConfigPaths::logDir},
    //: Label of a file path
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "State file"), &ConfigPaths::stateFile},
    //: Label of a file path: the key file for the stored account credentials
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "Credentials key"), &ConfigPaths::credentialsKeyFile},
    //: Label of a file path: the service's history file
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "History"), &ConfigPaths::historyFile},
    //: Label of a folder path: the service's profiles folder
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "Profiles"), &ConfigPaths::profilesDir},
    //: Label of a file path: the socket this app talks to the service through
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "Control socket"), &ConfigPaths::socketPath},
    //: Label of a file path
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "PID file"), &ConfigPaths::pidFile},
    //: Label of an address the service listens on for control requests
    {QT_TRANSLATE_NOOP("DiagnosticsSection", "Control address"), &ConfigPaths::controlAddr},
};

} // namespace

DiagnosticsSection::DiagnosticsSection(QWidget *parent)
    : SettingsCard(tr("Diagnostics"), parent)
    //: Button that resets the kill switch, local proxy and tunnel
    , m_repair(new QPushButton(tr("Repair"), this))
    , m_repairLines(new QLabel(this))
    //: Button that opens the log folder
    , m_openLogs(new QPushButton(tr("Open logs"), this))
    , m_daemonVersion(new QLabel(this))
    , m_controlVersion(new QLabel(this))
    , m_copy([](const QString &text) { QApplication::clipboard()->setText(text); })
{
    m_repair->setObjectName(QStringLiteral("TovraSettingsRepair"));
    m_repair->setAccessibleName(tr("Repair connection"));
    SettingsRow *repairRow =
        addRow(tr("Repair connection"),
               tr("Resets the kill switch, the local proxy and the tunnel when traffic is stuck."),
               m_repair);
    m_repairLines->setObjectName(QStringLiteral("TovraSettingsRepairLines"));
    m_repairLines->setWordWrap(true);
    m_repairLines->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_repairLines->hide();
    repairRow->addBelow(m_repairLines);
    connect(m_repair, &QPushButton::clicked, this, &DiagnosticsSection::repairDiagnosticsRequested);

    m_openLogs->setObjectName(QStringLiteral("TovraSettingsOpenLogs"));
    addRow(tr("Logs"), tr("The Tovra service's log folder, for support."), m_openLogs);
    connect(m_openLogs, &QPushButton::clicked, this, &DiagnosticsSection::openLogsRequested);

    auto *paths = new QWidget(this);
    auto *grid = new QGridLayout(paths);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    int row = 0;
    for (const PathField &field : kPaths) {
        const QString name = tr(field.label);
        auto *label = new QLabel(name, paths);
        label->setProperty("tovraRole", QStringLiteral("muted"));
        auto *value = new QLabel(paths);
        value->setObjectName(QStringLiteral("TovraSettingsPath"));
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        value->setWordWrap(true);
        value->setAccessibleName(name);
        //: Button that copies the path next to it
        auto *copy = new QPushButton(tr("Copy"), paths);
        copy->setProperty("tovraLink", true);
        //: %1 is one of the path labels above, such as "Runtime"
        copy->setAccessibleName(tr("Copy %1 path").arg(name));
        connect(copy, &QPushButton::clicked, this, [this, value] { m_copy(value->text()); });
        grid->addWidget(label, row, 0, Qt::AlignVCenter);
        grid->addWidget(value, row, 1, Qt::AlignVCenter);
        grid->addWidget(copy, row, 2, Qt::AlignVCenter);
        m_paths.append(value);
        m_copyButtons.append(copy);
        ++row;
    }
    grid->setColumnStretch(1, 1);
    addRow(tr("Service paths"), tr("Where the Tovra service keeps its files."), nullptr)
        ->addBelow(paths);

    m_daemonVersion->setObjectName(QStringLiteral("TovraSettingsDaemonVersion"));
    m_daemonVersion->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_controlVersion->setObjectName(QStringLiteral("TovraSettingsControlVersion"));
    m_controlVersion->setTextInteractionFlags(Qt::TextSelectableByMouse);
    addRow(tr("Tovra service version"), QString(), m_daemonVersion);
    addRow(tr("Control protocol"), tr("This app speaks version 1."), m_controlVersion);
}

void DiagnosticsSection::refresh(const AppState &state, bool available)
{
    const ConfigPaths &paths = state.configPaths();
    const bool known = available && paths.valid;
    for (qsizetype i = 0; i < m_paths.size(); ++i) {
        const QString value = known ? paths.*kPaths[i].member : QString();
        m_paths[i]->setText(value.isEmpty() ? (known ? tr("Not set") : unknownText()) : value);
        m_copyButtons[i]->setEnabled(!value.isEmpty());
    }
    m_repair->setEnabled(available);
    m_openLogs->setEnabled(available);

    const VersionInfo &version = state.version();
    const QString daemon =
        !version.daemonVersion.isEmpty() ? version.daemonVersion : state.runtime().daemonVersion;
    m_daemonVersion->setText(daemon.isEmpty() ? unknownText() : daemon);
    if (!version.valid || version.controlVersion.isEmpty())
        m_controlVersion->setText(unknownText());
    else if (version.compatible)
        m_controlVersion->setText(version.controlVersion);
    else
        m_controlVersion->setText(tr("%1, not compatible").arg(isolated(version.controlVersion)));
}

void DiagnosticsSection::setRepairResult(const RepairResultInfo &result)
{
    m_repairLines->setText(result.lines.join(QLatin1Char('\n')));
    m_repairLines->setVisible(!result.lines.isEmpty());
    // A repair that failed reads in the error colour, the rest as plain lines.
    setRole(m_repairLines,
            result.failedLines.isEmpty() ? QStringLiteral("muted") : QStringLiteral("error"));
}
