#include "ChevronLabel.h"
#include "ElidedLabel.h"
#include "FlowLayout.h"
#include "LayoutAlignedLabels.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

class TestLayoutWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flowWraps_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("firstX");
        QTest::addColumn<int>("secondX");
        const auto ltr = Qt::LeftToRight;
        QTest::addRow("exactly fits") << ltr << 230 << 1 << 0 << 60;
        QTest::addRow("one short") << ltr << 229 << 2 << 0 << 60;
        QTest::addRow("narrower than an item") << ltr << 30 << 4 << 0 << 0;
        QTest::addRow("rtl starts at the right") << Qt::RightToLeft << 200 << 2 << 150 << 90;
    }

    void flowWraps()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(int, width);
        QFETCH(int, rows);
        QFETCH(int, firstX);
        QFETCH(int, secondX);
        QWidget host;
        host.setLayoutDirection(direction);
        auto *flow = new FlowLayout(&host, 10, 5);
        for (int i = 0; i < 4; ++i) {
            auto *item = new QWidget;
            item->setFixedSize(50, 20);
            flow->addWidget(item);
        }
        QVERIFY(flow->hasHeightForWidth());
        QCOMPARE(flow->heightForWidth(width), rows * 20 + (rows - 1) * 5);
        flow->setGeometry(QRect(0, 0, width, 200));
        QCOMPARE(flow->itemAt(3)->geometry().top(), (rows - 1) * 25);
        QCOMPARE(flow->itemAt(0)->geometry().x(), firstX);
        QCOMPARE(flow->itemAt(1)->geometry().x(), secondX);
    }

    void elidedLabel_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("elided");
        QTest::addRow("wide enough") << 2000 << false;
        QTest::addRow("narrow") << 80 << true;
    }

    void elidedLabel()
    {
        QFETCH(int, width);
        QFETCH(bool, elided);
        const QString text =
            QStringLiteral("Netherlands \u2013 Amsterdam, optimised for streaming");
        ElidedLabel label(text);
        label.resize(width, label.sizeHint().height());
        QCOMPARE(label.isElided(), elided);
        QCOMPARE(label.text(), text);
        const QString shown = label.displayedText();
        QCOMPARE(shown.endsWith(QChar(0x2026)), elided);
        QVERIFY(label.fontMetrics().horizontalAdvance(shown) <= label.contentsRect().width());
        // The label may be squeezed below its text's width.
        QVERIFY(label.minimumSizeHint().width() < label.fontMetrics().horizontalAdvance(text));
    }

    void chevronSide_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addRow("ltr") << Qt::LeftToRight;
        QTest::addRow("rtl") << Qt::RightToLeft;
    }

    void chevronSide()
    {
        QFETCH(Qt::LayoutDirection, direction);
        ChevronLabel label(QStringLiteral("Germany \u2013 Frankfurt"));
        label.setLayoutDirection(direction);
        label.resize(300, 30);
        const QRect chevron = label.chevronRect();
        const QRect text = label.textRect();
        QVERIFY(!chevron.intersects(text));
        if (direction == Qt::LeftToRight) {
            QVERIFY(chevron.right() >= 290);
            QVERIFY(text.left() < chevron.left());
        } else {
            QVERIFY(chevron.left() <= 10);
            QVERIFY(text.right() > chevron.right());
        }
        // Squeezed, the text gives way and the chevron keeps its box.
        label.resize(60, 30);
        QCOMPARE(label.chevronRect().size(), chevron.size());
        QVERIFY(label.displayedText().endsWith(QChar(0x2026)));
    }

    // Space is QAbstractButton's own; Enter is the label's addition.
    void chevronLabelIsAKeyboardButton()
    {
        ChevronLabel label(QStringLiteral("Choose a region"));
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        QVERIFY(label.focusPolicy() & Qt::TabFocus);
        label.setFocus();
        QSignalSpy clicked(&label, &QAbstractButton::clicked);
        QTest::keyClick(&label, Qt::Key_Enter);
        QCOMPARE(clicked.count(), 1);
    }

    void labelStartsWhereTheLayoutStarts_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("shownIn");
        QTest::addColumn<Qt::LayoutDirection>("thenIn");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<QString>("side"); // where the ink is
        const auto rtl = Qt::RightToLeft;
        const auto ltr = Qt::LeftToRight;
        const QString english = QStringLiteral("WireGuard 0.3.0");
        const QString arabic = QStringLiteral("\u0627\u0644\u0648\u0636\u0639");
        const Qt::Alignment plain = Qt::AlignLeft | Qt::AlignVCenter;
        QTest::addRow("English in a right-to-left window")
            << rtl << rtl << english << plain << "right";
        QTest::addRow("Arabic in a left-to-right window")
            << ltr << ltr << arabic << plain << "left";
        QTest::addRow("trailing, right-to-left")
            << rtl << rtl << english << Qt::Alignment(Qt::AlignRight) << "left";
        QTest::addRow("centred stays centred")
            << rtl << rtl << english << Qt::Alignment(Qt::AlignHCenter) << "centre";
        QTest::addRow("direction changed while shown") << ltr << rtl << english << plain << "right";
    }

    void labelStartsWhereTheLayoutStarts()
    {
        QFETCH(Qt::LayoutDirection, shownIn);
        QFETCH(Qt::LayoutDirection, thenIn);
        QFETCH(QString, text);
        QFETCH(Qt::Alignment, alignment);
        QFETCH(QString, side);
        LayoutAlignedLabels::install();
        QWidget window;
        window.setLayoutDirection(shownIn);
        auto *label = new QLabel(text, &window);
        label->setAlignment(alignment);
        label->setGeometry(0, 0, 400, 30);
        window.resize(400, 30);
        window.show();
        window.setLayoutDirection(thenIn);
        // The columns the text's ink covers.
        const QImage image = label->grab().toImage();
        const QRgb background = image.pixel(image.width() - 1, image.height() - 1);
        int first = image.width(), last = -1;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixel(x, y) != background) {
                    first = qMin(first, x);
                    last = x;
                    break;
                }
            }
        }
        QVERIFY(last >= 0);
        const int middle = (first + last) / 2;
        const QString inked = middle < image.width() / 3       ? QStringLiteral("left")
                              : middle > image.width() * 2 / 3 ? QStringLiteral("right")
                                                               : QStringLiteral("centre");
        QCOMPARE(inked, side);
    }
};

QTEST_MAIN(TestLayoutWidgets)
#include "TestLayoutWidgets.moc"
