#include "ChevronLabel.h"
#include "ElidedLabel.h"
#include "FlowLayout.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class TestLayoutWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flowWraps_data();
    void flowWraps();
    void flowStartsAtLeadingEdge_data();
    void flowStartsAtLeadingEdge();
    void elidedLabel_data();
    void elidedLabel();
    void chevronSide_data();
    void chevronSide();
    void chevronLabelIsAKeyboardButton_data();
    void chevronLabelIsAKeyboardButton();
};

void TestLayoutWidgets::flowWraps_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("rows");
    // Four 50-pixel items with 10 pixels between them.
    QTest::addRow("all on one row") << 500 << 1;
    QTest::addRow("exactly fits") << 230 << 1;
    QTest::addRow("one short") << 229 << 2;
    QTest::addRow("two per row") << 110 << 2;
    QTest::addRow("one per row") << 60 << 4;
    QTest::addRow("narrower than an item") << 30 << 4;
}

void TestLayoutWidgets::flowWraps()
{
    QFETCH(int, width);
    QFETCH(int, rows);
    QWidget host;
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
}

void TestLayoutWidgets::flowStartsAtLeadingEdge_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("firstX");
    QTest::addColumn<int>("secondX");
    QTest::addRow("ltr") << Qt::LeftToRight << 0 << 60;
    QTest::addRow("rtl") << Qt::RightToLeft << 150 << 90;
}

void TestLayoutWidgets::flowStartsAtLeadingEdge()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, firstX);
    QFETCH(int, secondX);
    QWidget host;
    host.setLayoutDirection(direction);
    auto *flow = new FlowLayout(&host, 10, 5);
    for (int i = 0; i < 2; ++i) {
        auto *item = new QWidget;
        item->setFixedSize(50, 20);
        flow->addWidget(item);
    }
    flow->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(flow->itemAt(0)->geometry().x(), firstX);
    QCOMPARE(flow->itemAt(1)->geometry().x(), secondX);
}

void TestLayoutWidgets::elidedLabel_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<bool>("elided");
    QTest::addRow("wide enough") << 2000 << Qt::ElideRight << false;
    QTest::addRow("narrow right") << 80 << Qt::ElideRight << true;
    QTest::addRow("narrow middle") << 80 << Qt::ElideMiddle << true;
}

void TestLayoutWidgets::elidedLabel()
{
    QFETCH(int, width);
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(bool, elided);
    const QString text = QStringLiteral("Netherlands \u2013 Amsterdam, optimised for streaming");
    ElidedLabel label(text);
    label.setElideMode(mode);
    label.resize(width, label.sizeHint().height());
    QCOMPARE(label.isElided(), elided);
    QCOMPARE(label.text(), text);
    if (elided) {
        const QString shown = label.displayedText();
        QVERIFY(shown.contains(QChar(0x2026)));
        QCOMPARE(shown.endsWith(QChar(0x2026)), mode == Qt::ElideRight);
        QVERIFY(label.fontMetrics().horizontalAdvance(shown) <= label.contentsRect().width());
    } else {
        QCOMPARE(label.displayedText(), text);
    }
    QVERIFY(label.minimumSizeHint().width() < label.fontMetrics().horizontalAdvance(text));
    QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(iface->text(QAccessible::Name), text);
}

void TestLayoutWidgets::chevronSide_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addRow("ltr") << Qt::LeftToRight;
    QTest::addRow("rtl") << Qt::RightToLeft;
}

void TestLayoutWidgets::chevronSide()
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

void TestLayoutWidgets::chevronLabelIsAKeyboardButton_data()
{
    QTest::addColumn<int>("key");
    QTest::addRow("space") << int(Qt::Key_Space);
    QTest::addRow("return") << int(Qt::Key_Return);
    QTest::addRow("enter") << int(Qt::Key_Enter);
}

void TestLayoutWidgets::chevronLabelIsAKeyboardButton()
{
    QFETCH(int, key);
    ChevronLabel label(QStringLiteral("Choose a region"));
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    label.setFocus();
    QSignalSpy clicked(&label, &QAbstractButton::clicked);
    QTest::keyClick(&label, Qt::Key(key));
    QCOMPARE(clicked.count(), 1);
    QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(iface->role(), QAccessible::Button);
    QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Choose a region"));
    QVERIFY(iface->state().focusable);
}

QTEST_MAIN(TestLayoutWidgets)
#include "TestLayoutWidgets.moc"
