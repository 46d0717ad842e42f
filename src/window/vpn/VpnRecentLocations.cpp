#include "VpnRecentLocations.h"

#include "BidiText.h"
#include "Countries.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

VpnRecentLocations::VpnRecentLocations(QWidget *parent)
    : QFrame(parent)
    , m_list(new QVBoxLayout)
    //: Button that empties the list of recent locations
    , m_clear(new QPushButton(tr("Clear"), this))
    , m_empty(new QLabel(tr("Locations you connect to appear here."), this))
{
    setObjectName(QStringLiteral("TovraVPNCard"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(22, 16, 22, 16);
    layout->setSpacing(8);

    auto *title = new QLabel(tr("Recent locations"), this);
    title->setObjectName(QStringLiteral("TovraVPNRecentTitle"));
    m_clear->setObjectName(QStringLiteral("TovraVPNRecentClear"));
    m_clear->setAccessibleName(tr("Clear recent locations"));
    m_clear->setAutoDefault(false);
    auto *head = new QHBoxLayout;
    head->addWidget(title);
    head->addStretch(1);
    head->addWidget(m_clear);

    m_empty->setProperty("tovraRole", QStringLiteral("muted"));
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignAbsolute | Qt::AlignVCenter |
                          (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    m_list->setSpacing(6);
    m_list->setContentsMargins(0, 0, 0, 0);
    // Twenty rows do not fit beside the status card: the list scrolls, the card stays.
    auto *scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("TovraVPNScrollArea"));
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFrameShape(QFrame::NoFrame);
    // Not a stop of its own: Tab goes to the controls, and the area scrolls to show them.
    scroll->setFocusPolicy(Qt::NoFocus);
    auto *content = new QWidget(scroll);
    auto *contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->addLayout(m_list);
    contentLayout->addStretch(1);
    scroll->setWidget(content);
    m_scroll = scroll;

    layout->addLayout(head);
    layout->addWidget(m_empty);
    layout->addWidget(scroll, 1);
    connect(m_clear, &QPushButton::clicked, this, &VpnRecentLocations::clearRequested);
    setLocations({});
}

void VpnRecentLocations::setLocations(const QList<RecentLocation> &locations)
{
    qDeleteAll(m_rows);
    m_rows.clear();
    for (const RecentLocation &location : locations) {
        auto *row = new QPushButton(location.label.isEmpty() ? location.id : location.label,
                                    m_scroll->widget());
        row->setObjectName(QStringLiteral("TovraVPNRecentItem"));
        row->setAccessibleName(tr("Connect to %1").arg(isolated(row->text())));
        row->setAutoDefault(false);
        row->setCursor(Qt::PointingHandCursor);
        row->setEnabled(m_connectEnabled);
        const QPixmap flag = countryFlag(location.flagCode);
        if (!flag.isNull()) {
            row->setIcon(QIcon(flag));
            row->setIconSize(QSize(24, 18));
        }
        connect(row, &QPushButton::clicked, this,
                [this, location] { Q_EMIT locationChosen(location); });
        m_list->addWidget(row);
        m_rows.append(row);
    }
    m_empty->setVisible(locations.isEmpty());
    m_scroll->setVisible(!locations.isEmpty());
    m_clear->setVisible(!locations.isEmpty());
}

void VpnRecentLocations::setConnectEnabled(bool enabled)
{
    m_connectEnabled = enabled;
    for (QPushButton *row : std::as_const(m_rows))
        row->setEnabled(enabled);
}
