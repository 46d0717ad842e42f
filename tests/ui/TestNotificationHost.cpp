#include "NotificationHost.h"
#include "ThemeEngine.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// A themed window with a page area, as the main window has one.
struct HostWindow
{
    QMainWindow window;
    QStackedWidget *pages = nullptr;
    NotificationHost *host = nullptr;

    explicit HostWindow(const QSize &size)
    {
        auto *root = new QWidget;
        root->setObjectName(QStringLiteral("TovraWindowRoot"));
        auto *layout = new QVBoxLayout(root);
        layout->setContentsMargins(0, 0, 0, 0);
        pages = new QStackedWidget;
        pages->addWidget(new QWidget);
        layout->addWidget(pages);
        window.setCentralWidget(root);
        host = new NotificationHost(root);
        ThemeEngine::applyToWindow(&window, ThemeEngine::buildColors(Appearance::Light));
        window.resize(size);
        window.show();
    }
};

QLabel *iconOf(NotificationHost &host)
{
    return host.findChild<QLabel *>(QStringLiteral("TovraNotificationIcon"));
}

} // namespace

class TestNotificationHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_data();
    void kinds();
    void emptyMessageIsIgnored();
    void timerDismisses_data();
    void timerDismisses();
    void secondMessageRestartsTimer();
    void closeButtonDismisses();
    void placement_data();
    void placement();
    void tooSmallAreaLeavesHostAlone();
};

void TestNotificationHost::kinds_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("expectedKind");
    QTest::addColumn<QString>("glyph");
    QTest::addRow("success") << QStringLiteral("success") << QStringLiteral("success")
                             << QStringLiteral("\u2713");
    QTest::addRow("mixed case with blank")
        << QStringLiteral("Warning ") << QStringLiteral("warning") << QStringLiteral("!");
    QTest::addRow("error") << QStringLiteral("ERROR") << QStringLiteral("error")
                           << QStringLiteral("\u2715");
    QTest::addRow("info") << QStringLiteral("info") << QStringLiteral("info") << QString();
    QTest::addRow("unknown") << QStringLiteral("celebration") << QStringLiteral("info")
                             << QString();
    QTest::addRow("empty") << QString() << QStringLiteral("info") << QString();
}

void TestNotificationHost::kinds()
{
    QFETCH(QString, kind);
    QFETCH(QString, expectedKind);
    QFETCH(QString, glyph);
    HostWindow w(QSize(800, 600));
    w.host->showMessage(QStringLiteral("  Kill switch enabled "), kind, 0);
    QVERIFY(w.host->isVisible());
    QCOMPARE(w.host->property("tovraNotificationKind").toString(), expectedKind);
    QCOMPARE(iconOf(*w.host)->text(), glyph);
    QCOMPARE(iconOf(*w.host)->isVisible(), !glyph.isEmpty());
    QCOMPARE(w.host->accessibleName(), QStringLiteral("Notification: Kill switch enabled"));
    const auto *message = w.host->findChild<QLabel *>(QStringLiteral("TovraNotificationMessage"));
    QCOMPARE(message->text(), QStringLiteral("Kill switch enabled"));
}

void TestNotificationHost::emptyMessageIsIgnored()
{
    HostWindow w(QSize(800, 600));
    w.host->showMessage(QStringLiteral("Updated"), QStringLiteral("success"), 0);
    w.host->showMessage(QStringLiteral("   "), QStringLiteral("error"), 0);
    QVERIFY(w.host->isVisible());
    QCOMPARE(w.host->kind(), QStringLiteral("success"));
}

void TestNotificationHost::timerDismisses_data()
{
    QTest::addColumn<int>("duration");
    QTest::addColumn<bool>("timed");
    QTest::addRow("positive") << 30 << true;
    QTest::addRow("zero stays") << 0 << false;
    QTest::addRow("negative stays") << -5 << false;
}

void TestNotificationHost::timerDismisses()
{
    QFETCH(int, duration);
    QFETCH(bool, timed);
    HostWindow w(QSize(800, 600));
    auto *timer = w.host->findChild<QTimer *>();
    QVERIFY(timer);
    w.host->showMessage(QStringLiteral("Mode updated"), QStringLiteral("info"), duration);
    QCOMPARE(timer->isActive(), timed);
    if (timed) {
        QTRY_VERIFY(!w.host->isVisible());
    } else {
        QVERIFY(w.host->isVisible());
    }
}

void TestNotificationHost::secondMessageRestartsTimer()
{
    HostWindow w(QSize(800, 600));
    auto *timer = w.host->findChild<QTimer *>();
    w.host->showMessage(QStringLiteral("First"), QStringLiteral("info"), 3600000);
    QCOMPARE(timer->interval(), 3600000);
    w.host->showMessage(QStringLiteral("Second"), QStringLiteral("error"), 40);
    QCOMPARE(timer->interval(), 40);
    QTRY_VERIFY(!w.host->isVisible());
    w.host->showMessage(QStringLiteral("Third"), QStringLiteral("info"), 50);
    w.host->showMessage(QStringLiteral("Fourth"), QStringLiteral("info"), 0);
    QVERIFY(!timer->isActive());
}

void TestNotificationHost::closeButtonDismisses()
{
    HostWindow w(QSize(800, 600));
    w.host->showMessage(QStringLiteral("Logged out"), QStringLiteral("success"), 100000);
    auto *close = w.host->findChild<QToolButton *>(QStringLiteral("TovraNotificationClose"));
    QCOMPARE(close->text(), QStringLiteral("\u00D7"));
    QCOMPARE(close->accessibleName(), QStringLiteral("Dismiss notification"));
    QCOMPARE(close->focusPolicy(), Qt::StrongFocus);
    QTest::mouseClick(close, Qt::LeftButton);
    QVERIFY(!w.host->isVisible());
    QVERIFY(!w.host->findChild<QTimer *>()->isActive());
}

void TestNotificationHost::placement_data()
{
    QTest::addColumn<QSize>("windowSize");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("capped");
    QTest::addRow("short in wide window") << QSize(900, 600) << QStringLiteral("Updated") << false;
    QTest::addRow("long in wide window")
        << QSize(900, 600)
        << QStringLiteral("The download belongs to a different update release. Check for "
                          "updates again, then try the download once more.")
        << true;
    QTest::addRow("long in narrow window")
        << QSize(300, 600)
        << QStringLiteral("The update was downloaded, but the installer could not be opened.")
        << true;
}

void TestNotificationHost::placement()
{
    QFETCH(QSize, windowSize);
    QFETCH(QString, text);
    QFETCH(bool, capped);
    HostWindow w(windowSize);
    QVERIFY(QTest::qWaitForWindowExposed(&w.window));
    w.host->showMessage(text, QStringLiteral("warning"), 0);
    const QRect area = w.pages->geometry();
    w.host->placeIn(area);

    const QRect placed = w.host->geometry();
    const int available = area.width() - 40;
    const int limit = qMin(available, 460);
    auto *message = w.host->findChild<QLabel *>(QStringLiteral("TovraNotificationMessage"));
    if (capped) {
        QCOMPARE(placed.width(), limit);
        QVERIFY(message->wordWrap());
        QVERIFY(placed.height() > w.host->fontMetrics().height() * 2);
    } else {
        QVERIFY(placed.width() < limit);
        QVERIFY(!message->wordWrap());
    }
    const int expectedX =
        area.left() + 20 + (available - placed.width() > 1 ? (available - placed.width()) / 2 : 0);
    QCOMPARE(placed.x(), expectedX);
    QCOMPARE(placed.y() + placed.height(), area.top() + area.height() - 20);
}

void TestNotificationHost::tooSmallAreaLeavesHostAlone()
{
    HostWindow w(QSize(400, 300));
    w.host->showMessage(QStringLiteral("Updated"), QStringLiteral("info"), 0);
    w.host->setGeometry(5, 6, 70, 30);
    w.host->placeIn(QRect(0, 0, 40, 300));
    QCOMPARE(w.host->geometry(), QRect(5, 6, 70, 30));
    w.host->placeIn(QRect(0, 0, 300, 40));
    QCOMPARE(w.host->geometry(), QRect(5, 6, 70, 30));
}

QTEST_MAIN(TestNotificationHost)
#include "TestNotificationHost.moc"
