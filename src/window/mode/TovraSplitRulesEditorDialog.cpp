#include "TovraSplitRulesEditorDialog.h"

#include "BidiText.h"
#include "ModeSegmentedBar.h"
#include "SplitRuleValidator.h"
#include "ThemeEngine.h"
#include "TovraDialogTitleBarThemer.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// The kinds a daemon is known to report, in the order they read best; others follow by name.
const QStringList kKnownKinds{QStringLiteral("direct"), QStringLiteral("proxy"),
                              QStringLiteral("block")};

// Counting 10,000 lines on every key press would make typing lag.
constexpr int kStatusDelayMs = 150;

} // namespace

TovraSplitRulesEditorDialog::TovraSplitRulesEditorDialog(QWidget *parent)
    : QDialog(parent)
    , m_kindBar(new ModeSegmentedBar(tr("Rule list"), this))
    , m_editor(new QPlainTextEdit(this))
    , m_status(new QLabel(this))
    , m_problems(new QLabel(this))
    , m_result(new QLabel(this))
    //: Button that replaces the chosen rule list with the lines typed
    , m_import(new QPushButton(tr("Import"), this))
    , m_statusTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("TovraSplitRulesEditorDialog"));
    setWindowTitle(tr("Custom split rules"));
    setModal(true);
    resize(600, 540);

    auto *title = new QLabel(tr("Custom split rules"), this);
    title->setObjectName(QStringLiteral("TovraCardTitle"));
    auto *intro = new QLabel(tr("One domain, IP address or CIDR range per line, such as "
                                "example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # "
                                "are comments."),
                             this);
    intro->setProperty("tovraRole", QStringLiteral("muted"));
    intro->setWordWrap(true);

    m_kindBar->setAttachedToEditor(true);
    m_kindBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_editor->setObjectName(QStringLiteral("TovraSplitRulesEditor"));
    m_editor->setProperty("tovraAttachedEditor", QStringLiteral("true"));
    m_editor->setAccessibleName(tr("Rules"));
    m_editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_editor->setTabChangesFocus(true);
    m_editor->setPlaceholderText(tr("example.org\n*.example.net\n203.0.113.0/24"));

    m_status->setObjectName(QStringLiteral("TovraSplitRulesStatus"));
    m_problems->setObjectName(QStringLiteral("TovraSplitRulesProblems"));
    m_problems->setProperty("tovraRole", QStringLiteral("error"));
    m_problems->setWordWrap(true);
    m_problems->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_problems->hide();
    m_result->setObjectName(QStringLiteral("TovraSplitRulesResult"));
    m_result->setWordWrap(true);
    m_result->hide();

    //: Button
    auto *close = new QPushButton(tr("Close"), this);
    for (QPushButton *button : {m_import, close})
        button->setAutoDefault(false);
    m_import->setObjectName(QStringLiteral("TovraSplitRulesImport"));
    m_import->setAccessibleDescription(tr("Replace the chosen list with these rules"));

    auto *attached = new QVBoxLayout;
    attached->setSpacing(0);
    attached->addWidget(m_kindBar);
    attached->addWidget(m_editor, 1);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_status, 1);
    buttons->addWidget(close);
    buttons->addWidget(m_import);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 20);
    layout->setSpacing(10);
    layout->addWidget(title);
    layout->addWidget(intro);
    layout->addLayout(attached, 1);
    layout->addWidget(m_problems);
    layout->addWidget(m_result);
    layout->addLayout(buttons);

    m_statusTimer->setSingleShot(true);
    m_statusTimer->setInterval(kStatusDelayMs);
    connect(m_statusTimer, &QTimer::timeout, this, &TovraSplitRulesEditorDialog::updateStatus);
    connect(m_editor, &QPlainTextEdit::textChanged, this, &TovraSplitRulesEditorDialog::noteEdit);
    connect(m_kindBar, &ModeSegmentedBar::valueRequested, this,
            &TovraSplitRulesEditorDialog::selectKind);
    connect(m_import, &QPushButton::clicked, this, &TovraSplitRulesEditorDialog::importCurrent);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    TovraDialogTitleBarThemer::attach(this);
    rebuildKinds();
}

void TovraSplitRulesEditorDialog::setThemeColors(const ThemeColors &colors)
{
    ThemeEngine::applyToWindow(this, colors);
}

QString TovraSplitRulesEditorDialog::kindLabel(const QString &kind)
{
    if (kind == u"direct")
        //: Name of the rule list whose sites and addresses go straight to the internet
        return tr("Direct");
    if (kind == u"proxy")
        return tr("Proxy");
    if (kind == u"block")
        return tr("Block");
    return kind;
}

QStringList TovraSplitRulesEditorDialog::kinds() const
{
    QStringList reported = m_rules.rules.keys();
    for (const QString &kind : m_rules.files.keys()) {
        if (!reported.contains(kind))
            reported.append(kind);
    }
    QStringList ordered;
    for (const QString &kind : kKnownKinds) {
        if (reported.removeAll(kind) > 0)
            ordered.append(kind);
    }
    reported.sort();
    return ordered + reported;
}

QString TovraSplitRulesEditorDialog::savedText(const QString &kind) const
{
    const QStringList items = m_rules.rules.value(kind);
    return items.isEmpty() ? QString() : items.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void TovraSplitRulesEditorDialog::setRules(const SplitRulesInfo &rules)
{
    if (rules == m_rules)
        return;
    m_rules = rules;
    // A draft that now matches what the daemon holds is no longer unsaved.
    for (auto it = m_drafts.begin(); it != m_drafts.end();) {
        if (it.value().trimmed() == savedText(it.key()).trimmed())
            it = m_drafts.erase(it);
        else
            ++it;
    }
    rebuildKinds();
}

void TovraSplitRulesEditorDialog::rebuildKinds()
{
    const QStringList available = kinds();
    if (available != m_kindBar->values()) {
        m_kindBar->clearSegments();
        for (const QString &kind : available) {
            const char *description = nullptr;
            if (kind == u"direct")
                description = QT_TR_NOOP("Sites and addresses that always go direct");
            else if (kind == u"proxy")
                description = QT_TR_NOOP("Sites and addresses that always go through Tovra");
            else if (kind == u"block")
                description = QT_TR_NOOP("Sites and addresses that are blocked");
            m_kindBar->addSegment(kind, kindLabel(kind), description ? tr(description) : QString());
        }
    }
    // The kind on show stays, and with it the cursor in its text.
    loadKind(available.contains(m_kind) ? m_kind : available.value(0));
}

void TovraSplitRulesEditorDialog::selectKind(const QString &kind)
{
    if (kind == m_kind || !kinds().contains(kind))
        return;
    loadKind(kind);
}

void TovraSplitRulesEditorDialog::loadKind(const QString &kind)
{
    const bool switching = kind != m_kind;
    m_kind = kind;
    m_kindBar->setCurrentValue(kind);
    const QString text = m_drafts.contains(kind) ? m_drafts.value(kind) : savedText(kind);
    if (switching || m_editor->toPlainText() != text) {
        m_loading = true;
        m_editor->setPlainText(text);
        m_loading = false;
    }
    if (switching)
        m_problems->hide();
    updateStatus();
    updateEnabled();
}

bool TovraSplitRulesEditorDialog::hasUnsavedEdits(const QString &kind) const
{
    return m_drafts.contains(kind);
}

void TovraSplitRulesEditorDialog::noteEdit()
{
    if (m_loading || m_kind.isEmpty())
        return;
    const QString text = m_editor->toPlainText();
    if (text == savedText(m_kind))
        m_drafts.remove(m_kind);
    else
        m_drafts.insert(m_kind, text);
    m_statusTimer->start();
}

void TovraSplitRulesEditorDialog::updateStatus()
{
    m_statusTimer->stop();
    QString text;
    if (m_fetching && m_rules.rules.isEmpty()) {
        text = tr("Loading rules\u2026");
    } else if (m_kind.isEmpty()) {
        text = m_rules.valid ? tr("The Tovra service reports no rule lists.")
                             : tr("Rules are not loaded yet.");
    } else {
        const QString content = m_editor->toPlainText();
        // A closing newline ends the last line; it does not start another.
        const int lines =
            content.isEmpty() ? 0 : m_editor->blockCount() - (content.endsWith(u'\n') ? 1 : 0);
        text =
            tr("Rules: %1 \u00b7 Lines: %2").arg(SplitRuleValidator::ruleCount(content)).arg(lines);
        if (m_drafts.contains(m_kind))
            text += QStringLiteral(" \u00b7 ") + tr("not imported");
        if (m_importing)
            text += QStringLiteral(" \u00b7 ") + tr("importing\u2026");
    }
    m_status->setText(text);
}

void TovraSplitRulesEditorDialog::updateEnabled()
{
    const bool haveKind = !m_kind.isEmpty();
    m_editor->setEnabled(haveKind);
    m_kindBar->setEnabled(!m_importing);
    m_import->setEnabled(haveKind && !m_importing && !m_fetching);
}

void TovraSplitRulesEditorDialog::setFetchInProgress(bool inProgress)
{
    m_fetching = inProgress;
    updateStatus();
    updateEnabled();
}

void TovraSplitRulesEditorDialog::setImportInProgress(bool inProgress)
{
    m_importing = inProgress;
    updateStatus();
    updateEnabled();
}

void TovraSplitRulesEditorDialog::importCurrent()
{
    if (m_kind.isEmpty() || m_importing)
        return;
    const QString content = m_editor->toPlainText();
    const SplitRuleValidator::Result check = SplitRuleValidator::validate(content, ProblemLimit);
    updateStatus();
    m_result->hide();
    if (check.badLines > 0) {
        QStringList lines;
        lines.append(tr("Nothing was imported. Fix these lines first:"));
        for (const SplitRuleValidator::Problem &problem : check.problems) {
            lines.append(tr("Line %1: \u201c%2\u201d is not a domain, IP address or CIDR range.")
                             .arg(problem.line)
                             .arg(isolated(problem.text.left(80))));
        }
        if (check.badLines > int(check.problems.size()))
            lines.append(tr("\u2026 Bad lines in all: %1.").arg(check.badLines));
        m_problems->setText(lines.join(QLatin1Char('\n')));
        m_problems->show();
        return;
    }
    m_problems->hide();
    m_pendingImportKind = m_kind;
    Q_EMIT importRequested(m_kind, content);
}

void TovraSplitRulesEditorDialog::showResult(const QString &text, const QString &kind)
{
    const bool failed = kind == u"error";
    if (!failed && !m_pendingImportKind.isEmpty()) {
        // Imported: the daemon's copy is now the one to show once it arrives.
        m_drafts.remove(m_pendingImportKind);
        updateStatus();
    }
    m_pendingImportKind.clear();
    if (!failed)
        m_problems->hide();
    setResult(text, failed ? QStringLiteral("error") : kind);
}

void TovraSplitRulesEditorDialog::setResult(const QString &text, const QString &role)
{
    m_result->setText(text);
    m_result->setProperty("tovraResultKind", role);
    m_result->style()->unpolish(m_result);
    m_result->style()->polish(m_result);
    m_result->setVisible(!text.isEmpty());
}
