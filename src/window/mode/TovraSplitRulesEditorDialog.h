#pragma once

#include "SplitRulesInfo.h"
#include "ThemeColors.h"

#include <QDialog>
#include <QMap>

class ModeSegmentedBar;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTimer;

// Edits the daemon's custom split rule lists, one kind at a time. It keeps the unsaved text of
// every kind, so switching kinds or closing and reopening loses nothing, and it checks every
// line before anything is sent.
class TovraSplitRulesEditorDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int ProblemLimit = 8;

    explicit TovraSplitRulesEditorDialog(QWidget *parent = nullptr);

    void setThemeColors(const ThemeColors &colors);
    void setRules(const SplitRulesInfo &rules);
    void setFetchInProgress(bool inProgress);
    void setImportInProgress(bool inProgress);
    // The shell's word on the last import; kind is "success", "info" or "error".
    void showResult(const QString &text, const QString &kind);

    QStringList kinds() const;
    QString currentKind() const { return m_kind; }
    void selectKind(const QString &kind);
    bool hasUnsavedEdits(const QString &kind) const;
    // Both on the kinds' word as the daemon spells it; an unknown kind shows as it is.
    static QString kindLabel(const QString &kind);

    QPlainTextEdit *editor() const { return m_editor; }
    ModeSegmentedBar *kindBar() const { return m_kindBar; }
    QPushButton *importButton() const { return m_import; }
    QLabel *statusLabel() const { return m_status; }
    QLabel *problemsLabel() const { return m_problems; }
    QLabel *resultLabel() const { return m_result; }

Q_SIGNALS:
    void importRequested(QString kind, QString content);

private:
    QString savedText(const QString &kind) const;
    void rebuildKinds();
    void loadKind(const QString &kind);
    void noteEdit();
    void importCurrent();
    void updateStatus();
    void updateEnabled();
    void setResult(const QString &text, const QString &role);

    SplitRulesInfo m_rules;
    QMap<QString, QString> m_drafts;
    QString m_kind;
    QString m_pendingImportKind;
    bool m_loading = false;
    bool m_fetching = false;
    bool m_importing = false;

    ModeSegmentedBar *m_kindBar;
    QPlainTextEdit *m_editor;
    QLabel *m_status;
    QLabel *m_problems;
    QLabel *m_result;
    QPushButton *m_import;
    QTimer *m_statusTimer;
};
