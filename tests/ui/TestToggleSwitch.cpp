#include "ToggleSwitch.h"

#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

namespace {

// The switch alone, on a transparent canvas, so painted colours and alphas read back exactly.
QImage paintAlone(ToggleSwitch &toggle)
{
    QImage image(toggle.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    toggle.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QColor trackPixel(const ToggleSwitch &toggle, const QImage &image)
{
    // Inside the track, between the thumb positions and clear of the rounded ends.
    const QRectF track = toggle.trackRect();
    return image.pixelColor(int(track.center().x()), int(track.top()) + 2);
}

} // namespace

class TestToggleSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickOnlyRequests_data()
    {
        QTest::addColumn<bool>("checked");
        QTest::addColumn<int>("input");
        QTest::addRow("mouse on unchecked") << false << 0;
        QTest::addRow("return") << true << int(Qt::Key_Return);
    }

    void clickOnlyRequests()
    {
        QFETCH(bool, checked);
        QFETCH(int, input);
        ToggleSwitch toggle;
        toggle.setChecked(checked);
        toggle.resize(80, 40);
        toggle.show();
        QVERIFY(QTest::qWaitForWindowExposed(&toggle));
        QSignalSpy requested(&toggle, &ToggleSwitch::toggleRequested);
        QSignalSpy toggled(&toggle, &QAbstractButton::toggled);
        if (input == 0) {
            // A corner outside the track still counts: the whole widget is the button.
            QTest::mouseClick(&toggle, Qt::LeftButton, {}, QPoint(2, 2));
        } else {
            toggle.setFocus();
            QTest::keyClick(&toggle, Qt::Key(input));
        }
        QCOMPARE(requested.count(), 1);
        QCOMPARE(requested.first().first().toBool(), !checked);
        QCOMPARE(toggle.isChecked(), checked);
        QCOMPARE(toggled.count(), 0);
    }

    void paintsFromPalette_data()
    {
        QTest::addColumn<bool>("checked");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("onRight");
        QTest::addColumn<QPalette::ColorRole>("trackRole");
        QTest::addRow("ltr checked") << true << Qt::LeftToRight << true << QPalette::Highlight;
        QTest::addRow("ltr unchecked") << false << Qt::LeftToRight << false << QPalette::Mid;
        QTest::addRow("rtl checked") << true << Qt::RightToLeft << false << QPalette::Highlight;
    }

    void paintsFromPalette()
    {
        QFETCH(bool, checked);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(bool, onRight);
        QFETCH(QPalette::ColorRole, trackRole);
        // No colour properties set: the switch falls back to its palette.
        ToggleSwitch toggle;
        QPalette palette = toggle.palette();
        palette.setColor(QPalette::Highlight, QColor(10, 120, 200));
        palette.setColor(QPalette::Mid, QColor(150, 40, 40));
        palette.setColor(QPalette::Base, QColor(250, 240, 10));
        toggle.setPalette(palette);
        toggle.setLayoutDirection(direction);
        toggle.setChecked(checked);
        toggle.resize(46, 26);
        QCOMPARE(toggle.thumbRect(), onRight ? QRectF(23, 3, 20, 20) : QRectF(3, 3, 20, 20));
        const QImage image = paintAlone(toggle);
        QCOMPARE(trackPixel(toggle, image).rgb(), palette.color(trackRole).rgb());
        const QPoint thumb = toggle.thumbRect().center().toPoint();
        QCOMPARE(image.pixelColor(thumb).rgb(), QColor(250, 240, 10).rgb());
        QVERIFY(image.pixelColor(46 - thumb.x(), thumb.y()).rgb() != QColor(250, 240, 10).rgb());
    }

    void disabledAlphas()
    {
        ToggleSwitch toggle;
        toggle.setChecked(true);
        toggle.setEnabled(false);
        toggle.resize(46, 26);
        toggle.setProperty("tovraSwitchCheckedTrack", QColor(QStringLiteral("#04955A")));
        toggle.setProperty("tovraSwitchThumb", QColor(Qt::white));
        toggle.setProperty("tovraSwitchThumbBorder", QColor(Qt::transparent));
        const QImage image = paintAlone(toggle);
        const QColor track = trackPixel(toggle, image);
        QCOMPARE(track.alpha(), 85);
        // Premultiplied storage rounds the colour channels of a translucent pixel by a step or two.
        QVERIFY(qAbs(track.red() - 0x04) <= 2 && qAbs(track.green() - 0x95) <= 2 &&
                qAbs(track.blue() - 0x5A) <= 2);
        // The thumb is drawn over the track: 150 over 85 composes to 150 + 85 * (255 - 150) / 255.
        QCOMPARE(image.pixelColor(toggle.thumbRect().center().toPoint()).alpha(),
                 150 + 85 * 105 / 255);
    }

    void trackIsCentredNotStretched()
    {
        ToggleSwitch toggle;
        QCOMPARE(toggle.sizeHint(), QSize(46, 26));
        toggle.resize(101, 60);
        QCOMPARE(toggle.trackRect(), QRectF(27.5, 17, 46, 26));
        toggle.setProperty("tovraSwitchUncheckedTrack", QColor(Qt::red));
        const QImage image = paintAlone(toggle);
        QCOMPARE(image.pixelColor(5, 30).alpha(), 0);
        QCOMPARE(image.pixelColor(50, 19).rgb(), QColor(Qt::red).rgb());
    }
};

QTEST_MAIN(TestToggleSwitch)
#include "TestToggleSwitch.moc"
