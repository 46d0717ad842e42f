#include "NotificationHost.h"
#include "ThemeEngine.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {

// A themed window root with the host on it, as the main window has one.
struct HostWindow
{
    QWidget window;
    NotificationHost *host = new NotificationHost(&window);

    explicit HostWindow(const QSize &size)
    {
        window.setObjectName(QStringLiteral("TovraWindowRoot"));
        ThemeEngine::applyToWindow(&window, ThemeEngine::buildColors(Appearance::Light));
        window.resize(size);
        window.show();
    }
};

} // namespace

class TestNotificationHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("expectedKind");
        QTest::addColumn<QString>("glyph");
        QTest::addRow("success") << "success"
                                 << "success" << QStringLiteral("\u2713");
        QTest::addRow("mixed case with blank") << "Warning "
                                               << "warning"
                                               << "!";
        QTest::addRow("error") << "ERROR"
                               << "error" << QStringLiteral("\u2715");
        QTest::addRow("unknown") << "celebration"
                                 << "info" << QString();
    }

    void kinds()
    {
        QFETCH(QString, kind);
        QFETCH(QString, expectedKind);
        QFETCH(QString, glyph);
        HostWindow w(QSize(800, 600));
        w.host->showMessage(QStringLiteral("  Kill switch enabled "), kind, 100000);
        QVERIFY(w.host->isVisible());
        QCOMPARE(w.host->property("tovraNotificationKind").toString(), expectedKind);
        const auto *icon = w.host->findChild<QLabel *>(QStringLiteral("TovraNotificationIcon"));
        QCOMPARE(icon->text(), glyph);
        QCOMPARE(icon->isVisible(), !glyph.isEmpty());
        QCOMPARE(w.host->accessibleName(), QStringLiteral("Notification: Kill switch enabled"));
        const auto *message =
            w.host->findChild<QLabel *>(QStringLiteral("TovraNotificationMessage"));
        QCOMPARE(message->text(), QStringLiteral("Kill switch enabled"));
        // Sized for the styled 14px message font, not the default font the host was built with.
        QCOMPARE(message->font().pixelSize(), 14);
        const int line = message->fontMetrics().height();
        QCOMPARE(icon->size(), QSize(line, line));

        // The close button dismisses at once and stops the timer.
        auto *close = w.host->findChild<QToolButton *>(QStringLiteral("TovraNotificationClose"));
        QTest::mouseClick(close, Qt::LeftButton);
        QVERIFY(!w.host->isVisible());
        QVERIFY(!w.host->findChild<QTimer *>()->isActive());
    }

    void timerDismisses_data()
    {
        // A first message with its own timer, then the message under test.
        QTest::addColumn<int>("previous");
        QTest::addColumn<int>("duration");
        QTest::addColumn<bool>("timed");
        QTest::addRow("zero stays") << 0 << 0 << false;
        QTest::addRow("negative stops earlier timer") << 50 << -5 << false;
        QTest::addRow("shorter restarts long timer") << 3600000 << 40 << true;
    }

    void timerDismisses()
    {
        QFETCH(int, previous);
        QFETCH(int, duration);
        QFETCH(bool, timed);
        HostWindow w(QSize(800, 600));
        auto *timer = w.host->findChild<QTimer *>();
        w.host->showMessage(QStringLiteral("Updated"), QStringLiteral("success"), previous);
        w.host->showMessage(QStringLiteral("Mode updated"), QStringLiteral("info"), duration);
        QCOMPARE(timer->isActive(), timed);
        if (timed) {
            QTRY_VERIFY(!w.host->isVisible());
            return;
        }
        // A blank message is ignored and leaves the shown one alone.
        w.host->showMessage(QStringLiteral("   "), QStringLiteral("error"), 0);
        QVERIFY(w.host->isVisible());
        QCOMPARE(w.host->kind(), QStringLiteral("info"));
    }

    void placement_data()
    {
        QTest::addColumn<QSize>("windowSize");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("capped");
        QTest::addRow("short in wide window")
            << QSize(900, 600) << QStringLiteral("Updated") << false;
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

    void placement()
    {
        QFETCH(QSize, windowSize);
        QFETCH(QString, text);
        QFETCH(bool, capped);
        HostWindow w(windowSize);
        QVERIFY(QTest::qWaitForWindowExposed(&w.window));
        w.host->showMessage(text, QStringLiteral("warning"), 0);
        const QRect area = w.window.rect();
        w.host->placeIn(area);

        const QRect placed = w.host->geometry();
        const int available = area.width() - 40;
        const int limit = qMin(available, 460);
        auto *message = w.host->findChild<QLabel *>(QStringLiteral("TovraNotificationMessage"));
        if (capped) {
            QCOMPARE(placed.width(), limit);
            QVERIFY(message->wordWrap());
            // Every wrapped line fits, descenders included.
            QTRY_VERIFY(message->height() >= message->heightForWidth(message->width()));
            QVERIFY(placed.height() > w.host->fontMetrics().height() * 2);
        } else {
            QVERIFY(placed.width() < limit);
            QVERIFY(!message->wordWrap());
        }
        const int expectedX =
            area.left() + 20 +
            (available - placed.width() > 1 ? (available - placed.width()) / 2 : 0);
        QCOMPARE(placed.x(), expectedX);
        QCOMPARE(placed.y() + placed.height(), area.top() + area.height() - 20);
    }

    void tooSmallAreaLeavesHostAlone()
    {
        HostWindow w(QSize(400, 300));
        w.host->showMessage(QStringLiteral("Updated"), QStringLiteral("info"), 0);
        w.host->setGeometry(5, 6, 70, 30);
        w.host->placeIn(QRect(0, 0, 40, 300));
        QCOMPARE(w.host->geometry(), QRect(5, 6, 70, 30));
        w.host->placeIn(QRect(0, 0, 300, 40));
        QCOMPARE(w.host->geometry(), QRect(5, 6, 70, 30));
    }
};

QTEST_MAIN(TestNotificationHost)
#include "TestNotificationHost.moc"
