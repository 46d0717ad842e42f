#include "GalleryWindow.h"

#include "ChevronLabel.h"
#include "ConfirmDialog.h"
#include "ElidedLabel.h"
#include "FieldClearButton.h"
#include "FlowLayout.h"
#include "GalleryModel.h"
#include "IconTinter.h"
#include "LocationItemDelegate.h"
#include "NotificationHost.h"
#include "RequestButton.h"
#include "RequestRadioButton.h"
#include "ThemeEngine.h"
#include "ThemedScrollBar.h"
#include "ToggleSwitch.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QLabel *label(const QString &text, const char *role = nullptr)
{
    auto *result = new QLabel(text);
    if (role) {
        result->setProperty("tovraRole", QString::fromLatin1(role));
    }
    return result;
}

} // namespace

GalleryWindow::GalleryWindow(Appearance appearance, Qt::LayoutDirection direction,
                             Contrast contrast, QWidget *parent)
    : QWidget(parent)
    , m_appearance(appearance)
    , m_contrast(contrast)
{
    setObjectName(QStringLiteral("TovraWindowRoot"));
    setWindowTitle(QStringLiteral("Tovra widget gallery"));
    setAttribute(Qt::WA_StyledBackground, true);

    auto *root = new QHBoxLayout(this);
    root->setContentsMargins(0, 0, 0, 0);
    root->setSpacing(0);
    root->addWidget(buildSidebar());
    auto *divider = new QFrame;
    divider->setObjectName(QStringLiteral("TovraSidebarDivider"));
    divider->setFixedWidth(1);
    divider->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    root->addWidget(divider);

    m_content = new QWidget;
    auto *column = new QVBoxLayout(m_content);
    column->setContentsMargins(28, 20, 28, 20);
    column->setSpacing(14);
    auto *title = new QLabel(QStringLiteral("Widget gallery"));
    title->setObjectName(QStringLiteral("TovraCurrentPageTitle"));
    column->addWidget(title);
    column->addWidget(buildControls());

    auto *grid = new QGridLayout;
    grid->setSpacing(14);
    grid->addWidget(buildSwitchCard(), 0, 0);
    grid->addWidget(buildActionCard(), 0, 1);
    grid->addWidget(buildLabelCard(), 0, 2);
    grid->addWidget(buildLocationsCard(), 1, 0);
    grid->addWidget(buildFlowCard(), 1, 1);
    grid->addWidget(buildNotificationCard(), 1, 2);
    grid->addWidget(buildDialogCard(), 2, 0, 1, 3);
    for (int c = 0; c < 3; ++c) {
        grid->setColumnStretch(c, 1);
    }
    column->addLayout(grid, 1);
    root->addWidget(m_content, 1);

    m_host = new NotificationHost(m_content);
    m_host->showMessage(QStringLiteral("Connected to Germany \u2013 Frankfurt"),
                        QStringLiteral("success"), 0);
    applyTheme(appearance, direction);
}

QWidget *GalleryWindow::buildSidebar()
{
    auto *sidebar = new QWidget;
    sidebar->setObjectName(QStringLiteral("TovraSidebar"));
    sidebar->setAttribute(Qt::WA_StyledBackground, true);
    sidebar->setMinimumWidth(92);
    sidebar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    auto *layout = new QVBoxLayout(sidebar);
    layout->setContentsMargins(0, 8, 0, 8);
    layout->setSpacing(0);
    const QList<std::pair<QString, QString>> entries = {
        {QStringLiteral("VPN"), QStringLiteral(":/icons/vpn.svg")},
        {QStringLiteral("Locations"), QStringLiteral(":/icons/locations.svg")},
        {QStringLiteral("Mode"), QStringLiteral(":/icons/mode.svg")},
        {QStringLiteral("Settings"), QStringLiteral(":/icons/settings.svg")},
        {QStringLiteral("Account"), QStringLiteral(":/icons/account.svg")},
    };
    auto *group = new QButtonGroup(sidebar);
    for (const auto &[text, icon] : entries) {
        if (text == QLatin1String("Account")) {
            layout->addStretch(1);
        }
        auto *button = new QToolButton;
        button->setText(text);
        button->setAccessibleName(text);
        button->setCheckable(true);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIconSize(QSize(24, 24));
        button->setMinimumHeight(72);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setProperty("tovraSidebarIcon", icon);
        group->addButton(button);
        layout->addWidget(button);
        m_sidebarButtons.append(button);
    }
    m_sidebarButtons.at(1)->setChecked(true);
    m_sidebarButtons.at(2)->setEnabled(false);
    return sidebar;
}

QFrame *GalleryWindow::card(const QString &title, QVBoxLayout **body)
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("TovraStatusCard"));
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(18, 14, 18, 14);
    layout->setSpacing(10);
    auto *heading = new QLabel(title);
    heading->setObjectName(QStringLiteral("TovraCardTitle"));
    layout->addWidget(heading);
    *body = layout;
    return frame;
}

QWidget *GalleryWindow::buildControls()
{
    auto *bar = new QWidget;
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    m_darkSwitch = new ToggleSwitch;
    m_darkSwitch->setAccessibleName(QStringLiteral("Dark appearance"));
    m_darkSwitch->setChecked(m_appearance == Appearance::Dark);
    m_rtlSwitch = new ToggleSwitch;
    m_rtlSwitch->setAccessibleName(QStringLiteral("Right to left"));
    // The gallery is the owner here: it accepts every request at once.
    connect(m_darkSwitch, &ToggleSwitch::toggleRequested, this, [this](bool dark) {
        applyTheme(dark ? Appearance::Dark : Appearance::Light, layoutDirection());
    });
    connect(m_rtlSwitch, &ToggleSwitch::toggleRequested, this, [this](bool rtl) {
        applyTheme(m_appearance, rtl ? Qt::RightToLeft : Qt::LeftToRight);
    });
    m_contrastSwitch = new ToggleSwitch;
    m_contrastSwitch->setAccessibleName(QStringLiteral("High contrast"));
    connect(m_contrastSwitch, &ToggleSwitch::toggleRequested, this, [this](bool high) {
        m_contrast = high ? Contrast::High : Contrast::Normal;
        applyTheme(m_appearance, layoutDirection());
    });
    layout->addWidget(m_darkSwitch);
    layout->addWidget(label(QStringLiteral("Dark")));
    layout->addSpacing(16);
    layout->addWidget(m_rtlSwitch);
    layout->addWidget(label(QStringLiteral("Right to left")));
    layout->addSpacing(16);
    layout->addWidget(m_contrastSwitch);
    layout->addWidget(label(QStringLiteral("High contrast")));
    layout->addSpacing(16);
    auto *search = new QLineEdit;
    search->setObjectName(QStringLiteral("TovraLocationsSearch"));
    search->setPlaceholderText(QStringLiteral("Search locations"));
    FieldClearButton::enable(search, FieldClearButton::Kind::Search);
    // Tinted with the rest of the theme in applyTheme().
    m_searchAction = search->addAction(QIcon(), QLineEdit::LeadingPosition);
    layout->addWidget(search, 1);
    auto *combo = new QComboBox;
    combo->addItems(
        {QStringLiteral("Auto"), QStringLiteral("WireGuard"), QStringLiteral("TovraVPN")});
    layout->addWidget(combo);
    auto *tabs = new QTabBar;
    tabs->setObjectName(QStringLiteral("TovraLocationsTabs"));
    tabs->setDrawBase(false);
    tabs->addTab(QStringLiteral("All"));
    tabs->addTab(QStringLiteral("Favourites"));
    tabs->addTab(QStringLiteral("Streaming"));
    layout->addWidget(tabs);
    return bar;
}

QWidget *GalleryWindow::buildSwitchCard()
{
    QVBoxLayout *body = nullptr;
    QFrame *frame = card(QStringLiteral("Toggle switch"), &body);
    const struct
    {
        const char *text;
        bool checked;
        bool enabled;
    } rows[] = {{"Off", false, true},
                {"On", true, true},
                {"Disabled, off", false, false},
                {"Disabled, on", true, false}};
    for (const auto &row : rows) {
        auto *line = new QHBoxLayout;
        auto *toggle = new ToggleSwitch;
        toggle->setChecked(row.checked);
        toggle->setEnabled(row.enabled);
        toggle->setAccessibleName(QString::fromLatin1(row.text));
        connect(toggle, &ToggleSwitch::toggleRequested, toggle, &ToggleSwitch::setChecked);
        line->addWidget(toggle);
        line->addWidget(label(QString::fromLatin1(row.text)), 1);
        body->addLayout(line);
    }
    auto *check = new QCheckBox(QStringLiteral("Remember this account"));
    check->setChecked(true);
    body->addWidget(check);
    // Options that only ask, as the kill switch modes do; the gallery accepts at once.
    QList<RequestRadioButton *> options;
    for (const char *text : {"Auto", "Always"})
        options.append(new RequestRadioButton(QString::fromLatin1(text)));
    for (RequestRadioButton *option : options) {
        connect(option, &QRadioButton::clicked, option, [option, options] {
            for (RequestRadioButton *other : options)
                other->setChecked(other == option);
        });
        body->addWidget(option, 0, Qt::AlignLeading);
    }
    options.first()->setChecked(true);
    body->addStretch(1);
    return frame;
}

QWidget *GalleryWindow::buildActionCard()
{
    QVBoxLayout *body = nullptr;
    QFrame *frame = card(QStringLiteral("Actions and status"), &body);
    const struct
    {
        const char *text;
        const char *role;
        bool pending;
        bool enabled;
    } actions[] = {{"Connect", "connect", false, true},
                   {"Disconnect", "disconnect", false, true},
                   {"Connecting\u2026", "connect", true, false},
                   {"Connect (unavailable)", "connect", false, false}};
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    int index = 0;
    for (const auto &action : actions) {
        auto *button = new QPushButton(QString::fromUtf8(action.text));
        button->setObjectName(QStringLiteral("TovraVPNPrimaryAction"));
        button->setProperty("tovraPrimaryRole", QString::fromLatin1(action.role));
        if (action.pending) {
            button->setProperty("tovraPrimaryState", QStringLiteral("pending"));
        }
        button->setEnabled(action.enabled);
        grid->addWidget(button, index / 2, index % 2);
        ++index;
    }
    body->addLayout(grid);
    auto *dots = new QHBoxLayout;
    for (const char *state : {"connected", "disconnected", "unavailable"}) {
        auto *dot = new QLabel;
        dot->setObjectName(QStringLiteral("TovraVPNStatusDot"));
        dot->setProperty("tovraStatusState", QString::fromLatin1(state));
        dots->addWidget(dot);
        dots->addWidget(label(QString::fromLatin1(state), "muted"));
        dots->addSpacing(8);
    }
    dots->addStretch(1);
    body->addLayout(dots);

    auto *segmented = new QFrame;
    segmented->setObjectName(QStringLiteral("TovraSegmented"));
    auto *segments = new QHBoxLayout(segmented);
    segments->setContentsMargins(0, 0, 0, 0);
    segments->setSpacing(0);
    auto *group = new QButtonGroup(segmented);
    const char *names[] = {"Global", "Split", "Direct"};
    const char *positions[] = {"start", "", "end"};
    for (int i = 0; i < 3; ++i) {
        // Asks like the real segments; the gallery, as owner, accepts at once.
        auto *button = new RequestButton(QAccessible::RadioButton);
        button->setText(QString::fromLatin1(names[i]));
        connect(button, &QPushButton::clicked, button, [button] { button->setChecked(true); });
        if (positions[i][0] != '\0') {
            button->setProperty("tovraSegment", QString::fromLatin1(positions[i]));
        }
        group->addButton(button);
        segments->addWidget(button);
    }
    group->buttons().at(1)->setChecked(true);
    body->addWidget(segmented);
    body->addStretch(1);
    return frame;
}

QWidget *GalleryWindow::buildLabelCard()
{
    QVBoxLayout *body = nullptr;
    QFrame *frame = card(QStringLiteral("Labels"), &body);
    auto *elided = new ElidedLabel(
        QStringLiteral("Netherlands \u2013 Amsterdam, optimised for streaming and downloads"));
    elided->setMaximumWidth(220);
    body->addWidget(elided);
    auto *middle = new ElidedLabel(QStringLiteral("/home/user/.local/share/tovra/logs/gui.log"));
    middle->setElideMode(Qt::ElideMiddle);
    middle->setMaximumWidth(220);
    body->addWidget(middle);
    auto *forward = new ChevronLabel(QStringLiteral("Germany \u2013 Frankfurt"));
    forward->setObjectName(QStringLiteral("TovraVPNLocation"));
    body->addWidget(forward);
    auto *down = new ChevronLabel(QStringLiteral("Choose a region"));
    down->setChevron(ChevronLabel::Chevron::Down);
    body->addWidget(down);
    body->addWidget(label(QStringLiteral("Muted helper text"), "muted"));
    body->addWidget(label(QStringLiteral("Could not connect to this location"), "error"));
    body->addStretch(1);
    return frame;
}

QWidget *GalleryWindow::buildFlowCard()
{
    QVBoxLayout *body = nullptr;
    QFrame *frame = card(QStringLiteral("Flow layout"), &body);
    auto *chips = new QWidget;
    auto *flow = new FlowLayout(chips, 6, 6);
    for (const char *text : {"United States", "Japan", "Germany", "United Kingdom", "Canada",
                             "Singapore", "Brazil", "India"}) {
        auto *chip = new QPushButton(QString::fromLatin1(text));
        chip->setCheckable(true);
        flow->addWidget(chip);
    }
    qobject_cast<QPushButton *>(flow->itemAt(1)->widget())->setChecked(true);
    body->addWidget(chips);
    body->addStretch(1);
    return frame;
}

QWidget *GalleryWindow::buildLocationsCard()
{
    QVBoxLayout *body = nullptr;
    QFrame *frame = card(QStringLiteral("Location rows"), &body);
    auto *model = new GalleryModel(frame);
    auto *view = new QListView;
    view->setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical));
    view->setModel(model);
    view->setMouseTracking(true);
    view->setUniformItemSizes(true);
    m_delegate = new LocationItemDelegate(view);
    view->setItemDelegate(m_delegate);
    view->setCurrentIndex(model->index(2, 0));
    connect(m_delegate, &LocationItemDelegate::favoriteToggleRequested, model,
            &GalleryModel::setFavorite);
    body->addWidget(view, 1);
    return frame;
}

QWidget *GalleryWindow::buildNotificationCard()
{
    QVBoxLayout *body = nullptr;
    QFrame *frame = card(QStringLiteral("Notifications"), &body);
    const struct
    {
        const char *text;
        const char *kind;
    } rows[] = {{"Kill switch enabled", "success"},
                {"A required Tovra update is being checked before connecting.", "warning"},
                {"Could not connect to this location", "error"},
                {"Checking for updates", "info"}};
    for (const auto &row : rows) {
        auto *sample = new NotificationHost;
        sample->showMessage(QString::fromUtf8(row.text), QString::fromLatin1(row.kind), 0);
        body->addWidget(sample);
        m_samples.append(sample);
    }
    body->addStretch(1);
    return frame;
}

QWidget *GalleryWindow::buildDialogCard()
{
    QVBoxLayout *body = nullptr;
    QFrame *frame = card(QStringLiteral("Confirm dialogs"), &body);
    auto *row = new QHBoxLayout;
    for (bool destructive : {false, true}) {
        auto *dialog = new ConfirmDialog(this);
        // Shown in place rather than as a window, so that the screenshot holds it.
        dialog->setWindowFlags(Qt::Widget);
        if (destructive) {
            dialog->setTitle(QStringLiteral("Sign out of Tovra?"));
            dialog->setMessage(QStringLiteral("The tunnel is closed and remembered sign-in "
                                              "details are removed from this computer."));
            dialog->setAcceptButton(QStringLiteral("Sign Out"),
                                    QStringLiteral("Sign out and forget this account"));
            dialog->setDestructive(true);
        } else {
            dialog->setTitle(QStringLiteral("Kill Switch needs a VPN mode"));
            dialog->setMessage(
                QStringLiteral("Kill Switch can\u2019t run in Tovra Proxy. Switch to Auto "
                               "(recommended), TovraVPN, or WireGuard to enable it."));
            dialog->setAcceptButton(QStringLiteral("Switch to Auto and enable"),
                                    QStringLiteral("Switch to Auto and enable Kill Switch"));
            dialog->setAlternateButton(QStringLiteral("Choose mode\u2026"),
                                       QStringLiteral("Choose a mode for Kill Switch"));
        }
        dialog->setMinimumWidth(0);
        row->addWidget(dialog, 1);
        m_dialogs.append(dialog);
    }
    body->addLayout(row);
    return frame;
}

void GalleryWindow::applyTheme(Appearance appearance, Qt::LayoutDirection direction)
{
    m_appearance = appearance;
    setLayoutDirection(direction);
    const ThemeColors colors = ThemeEngine::buildColors(appearance, m_contrast);
    ThemeEngine::applyToWindow(this, colors);
    for (ConfirmDialog *dialog : m_dialogs) {
        dialog->setLayoutDirection(direction);
        ThemeEngine::applyToWindow(dialog, colors);
    }
    m_delegate->setThemeColors(colors);
    const qreal dpr = devicePixelRatioF();
    m_searchAction->setIcon(IconTinter::tinted(QStringLiteral(":/icons/search.svg"), QSize(16, 16),
                                               colors.color(ThemeColor::TextMuted), dpr));
    for (QToolButton *button : m_sidebarButtons) {
        button->setIcon(IconTinter::sidebarIcon(button->property("tovraSidebarIcon").toString(),
                                                colors, QSize(24, 24), dpr));
    }
    // Fitted after the theme, whose fonts decide the one-line width.
    for (NotificationHost *sample : m_samples) {
        const int width = sample->fitWidth(340);
        sample->setFixedHeight(sample->fittedHeight(width));
    }
    m_darkSwitch->setChecked(appearance == Appearance::Dark);
    m_rtlSwitch->setChecked(direction == Qt::RightToLeft);
    m_contrastSwitch->setChecked(m_contrast == Contrast::High);
    placeNotification();
}

void GalleryWindow::placeNotification()
{
    if (m_host && m_host->isVisible()) {
        m_host->placeIn(m_content->rect());
    }
}

void GalleryWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeNotification();
}

void GalleryWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    placeNotification();
}
