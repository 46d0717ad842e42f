#include "SplitOptionsCard.h"

#include "Countries.h"
#include "ModeInlineError.h"
#include "ModeSegmentedBar.h"
#include "ToggleSwitch.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QString kDirect = QStringLiteral("direct");
// Both families send "proxy" for their non-direct default: for the tunnel it means the tunnel.
const QString kThrough = QStringLiteral("proxy");

QLabel *mutedLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setProperty("tovraRole", QStringLiteral("muted"));
    label->setWordWrap(true);
    return label;
}

} // namespace

SplitOptionsCard::SplitOptionsCard(QWidget *parent)
    : QFrame(parent)
    , m_title(new QLabel(this))
    , m_none(mutedLabel(this))
    , m_error(new ModeInlineError(this))
{
    setObjectName(QStringLiteral("TovraModeCard"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 16);
    layout->setSpacing(10);
    m_title->setObjectName(QStringLiteral("TovraCardTitle"));
    layout->addWidget(m_title);

    m_none->setText(tr("Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: "
                       "by region, by the GFWList or by your own rules."));
    layout->addWidget(m_none);
    m_options = buildOptions();
    layout->addWidget(m_options);
    layout->addWidget(m_error);
    refresh(ModeInfo(), -1);
}

QWidget *SplitOptionsCard::row(QWidget *parent, QLabel *title, QLabel *detail, QWidget *control,
                               QWidget *extra)
{
    auto *line = new QWidget(parent);
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->setSpacing(12);
    auto *text = new QVBoxLayout;
    text->setSpacing(2);
    text->addWidget(title);
    text->addWidget(detail);
    layout->addLayout(text, 1);
    if (extra)
        layout->addWidget(extra, 0, Qt::AlignVCenter);
    layout->addWidget(control, 0, Qt::AlignVCenter);
    return line;
}

QWidget *SplitOptionsCard::buildOptions()
{
    auto *options = new QWidget(this);
    auto *layout = new QVBoxLayout(options);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);

    m_route = new ModeSegmentedBar(tr("Default route"), options);
    m_route->addSegment(kThrough, QString());
    //: Default route choice: traffic goes straight to the internet, outside the tunnel or proxy
    m_route->addSegment(kDirect, tr("Direct"), tr("Everything not chosen below goes direct"));
    m_routeDetail = mutedLabel(options);
    connect(m_route, &ModeSegmentedBar::valueRequested, this, [this](const QString &route) {
        if (route != m_route->currentValue())
            Q_EMIT setModeRequested(splitModeWithDefaultRoute(m_mode, m_family, route));
    });
    layout->addWidget(
        row(options, new QLabel(tr("Default route"), options), m_routeDetail, m_route));

    m_regionsDetail = mutedLabel(options);
    //: Button that opens the region picker
    m_chooseRegions = new QPushButton(tr("Choose\u2026"), options);
    m_chooseRegions->setObjectName(QStringLiteral("TovraModeChooseRegions"));
    m_chooseRegions->setAccessibleName(tr("Choose regions"));
    connect(m_chooseRegions, &QPushButton::clicked, this,
            &SplitOptionsCard::chooseRegionsRequested);
    layout->addWidget(
        row(options, new QLabel(tr("Regions"), options), m_regionsDetail, m_chooseRegions));

    m_gfwListTitle = new QLabel(options);
    m_gfwListDetail = mutedLabel(options);
    m_gfwList = new ToggleSwitch(options);
    connect(m_gfwList, &ToggleSwitch::toggleRequested, this, [this](bool enabled) {
        Q_EMIT setModeRequested(splitModeWithGfwList(m_mode, m_family, enabled));
    });
    layout->addWidget(row(options, m_gfwListTitle, m_gfwListDetail, m_gfwList));

    m_customRulesDetail = mutedLabel(options);
    m_customRules = new ToggleSwitch(options);
    m_customRules->setAccessibleName(tr("Custom split rules"));
    connect(m_customRules, &ToggleSwitch::toggleRequested, this, [this](bool enabled) {
        Q_EMIT setModeRequested(splitModeWithCustomRules(m_mode, m_family, enabled));
    });
    //: Button that opens the custom split rules editor
    m_editRules = new QPushButton(tr("Edit rules\u2026"), options);
    m_editRules->setObjectName(QStringLiteral("TovraModeEditRules"));
    m_editRules->setAccessibleName(tr("Edit custom split rules"));
    m_editRules->setCursor(Qt::PointingHandCursor);
    connect(m_editRules, &QPushButton::clicked, this, &SplitOptionsCard::editRulesRequested);
    layout->addWidget(row(options, new QLabel(tr("Custom split rules"), options),
                          m_customRulesDetail, m_customRules, m_editRules));
    return options;
}

void SplitOptionsCard::refresh(const ModeInfo &mode, int ruleCount)
{
    m_mode = mode;
    m_hasFamily = true;
    if (isTunnelSplit(mode))
        m_family = SplitFamily::Tunnel;
    else if (isProxySplit(mode))
        m_family = SplitFamily::Proxy;
    else
        m_hasFamily = false;

    m_title->setText(!m_hasFamily                      ? tr("Split routing")
                     : m_family == SplitFamily::Tunnel ? tr("TovraVPN Split options")
                                                       : tr("Tovra Proxy Split options"));
    m_none->setVisible(!m_hasFamily);
    m_options->setVisible(m_hasFamily);
    if (!m_hasFamily)
        return;

    const bool tunnel = m_family == SplitFamily::Tunnel;
    const SplitProfileInfo current = profile();
    const QString through = tunnel ? tr("Tunnel") : tr("Proxy");
    m_route->setSegmentText(kThrough, through);
    m_route->segment(kThrough)->setToolTip(
        tunnel ? tr("Everything not chosen below goes through the tunnel")
               : tr("Everything not chosen below goes through the proxy"));
    // "direct" picks Direct; any other route is the family's way through.
    m_route->setCurrentValue(current.defaultRoute == kDirect ? kDirect : kThrough);
    const bool direct = !regionsGoDirect();
    m_routeDetail->setText(
        direct   ? tr("Traffic goes direct unless a region, the GFWList or a rule says otherwise.")
        : tunnel ? tr("Traffic goes through the tunnel unless a region or a rule sends it direct.")
                 : tr("Traffic goes through the proxy unless a region or a rule sends it direct."));

    QStringList names;
    for (const QString &code : regions())
        names.append(countryName(code));
    const QString list = names.join(QStringLiteral(", "));
    if (names.isEmpty())
        m_regionsDetail->setText(tr("No regions chosen."));
    else if (regionsGoDirect())
        m_regionsDetail->setText(tr("Go direct: %1").arg(list));
    else
        m_regionsDetail->setText(tunnel ? tr("Go through the tunnel: %1").arg(list)
                                        : tr("Go through the proxy: %1").arg(list));

    m_gfwListTitle->setText(tunnel ? tr("GFWList \u2192 Tunnel") : tr("GFWList \u2192 Proxy"));
    m_gfwList->setAccessibleName(m_gfwListTitle->text());
    m_gfwListDetail->setText(tunnel ? tr("Sites on the GFWList always go through the tunnel.")
                                    : tr("Sites on the GFWList always go through the proxy."));
    m_gfwList->setChecked(current.gfwlist);

    m_customRules->setChecked(current.customRules);
    m_customRulesDetail->setText(ruleCount < 0 ? tr("Your own domain and address lists.")
                                               : tr("Your own domain and address lists. "
                                                    "Rules held: %1.")
                                                     .arg(ruleCount));
}

SplitProfileInfo SplitOptionsCard::profile() const
{
    return familySplitProfile(m_mode, m_family);
}

bool SplitOptionsCard::regionsGoDirect() const
{
    return profile().defaultRoute != kDirect;
}

QStringList SplitOptionsCard::regions() const
{
    const SplitProfileInfo current = profile();
    return regionsGoDirect() ? current.directRegions : current.proxyRegions;
}

void SplitOptionsCard::setControlsEnabled(bool enabled)
{
    for (QWidget *control :
         {static_cast<QWidget *>(m_route), static_cast<QWidget *>(m_gfwList),
          static_cast<QWidget *>(m_customRules), static_cast<QWidget *>(m_chooseRegions)})
        control->setEnabled(enabled);
}
