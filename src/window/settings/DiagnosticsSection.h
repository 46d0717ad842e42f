#pragma once

#include "SettingsCard.h"

#include "RepairResultInfo.h"

#include <functional>

class QGridLayout;
class QLabel;
class QPushButton;

// When something is wrong: the three repairs with what each answered, the daemon's logs, its
// paths (each with a copy button) and the daemon's and control protocol's versions.
class DiagnosticsSection : public SettingsCard
{
    Q_OBJECT

public:
    // Puts a text on the clipboard; replaceable so that tests leave the desktop's alone.
    using Copier = std::function<void(const QString &)>;

    explicit DiagnosticsSection(QWidget *parent = nullptr);

    void refresh(const AppState &state, bool available) override;
    void setRepairResult(const RepairResultInfo &result);
    void setCopier(Copier copier) { m_copy = std::move(copier); }

Q_SIGNALS:
    void repairDiagnosticsRequested();
    void openLogsRequested();

private:
    QPushButton *m_repair;
    QLabel *m_repairLines;
    QPushButton *m_openLogs;
    QList<QLabel *> m_paths;
    QList<QPushButton *> m_copyButtons;
    QLabel *m_daemonVersion;
    QLabel *m_controlVersion;
    Copier m_copy;
};
