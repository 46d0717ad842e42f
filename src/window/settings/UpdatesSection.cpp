#include "UpdatesSection.h"

#include "AppState.h"
#include "BidiText.h"
#include "SettingsRow.h"

#include <QLabel>
#include <QPushButton>

UpdatesSection::UpdatesSection(QWidget *parent)
    : SettingsCard(tr("Updates"), parent)
    , m_version(new QLabel(this))
    //: Button
    , m_check(new QPushButton(tr("Check for updates"), this))
    , m_checkNote(new QLabel(this))
{
    m_version->setObjectName(QStringLiteral("TovraSettingsVersion"));
    m_version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_version->setText(versionText(QStringLiteral(TOVRA_VERSION)));
    addRow(tr("Tovra for Linux"), tr("The version of this app."), m_version);

    m_check->setObjectName(QStringLiteral("TovraSettingsCheckUpdate"));
    SettingsRow *row =
        addRow(tr("Updates"), tr("Ask the Tovra service for a newer version."), m_check);
    m_checkNote->setObjectName(QStringLiteral("TovraSettingsUpdateResult"));
    m_checkNote->setWordWrap(true);
    m_checkNote->hide();
    row->addBelow(m_checkNote);
    connect(m_check, &QPushButton::clicked, this, &UpdatesSection::checkUpdateRequested);
}

QString UpdatesSection::versionText(const QString &version)
{
    const qsizetype plus = version.indexOf(QLatin1Char('+'));
    if (plus < 0)
        return version;
    return tr("%1 (build %2)").arg(isolated(version.left(plus)), isolated(version.mid(plus + 1)));
}

void UpdatesSection::refresh(const AppState &state, bool available)
{
    Q_UNUSED(state)
    m_check->setEnabled(available);
}

void UpdatesSection::setCheckNote(const QString &text)
{
    m_checkNote->setText(text);
    m_checkNote->setVisible(!text.isEmpty());
}
