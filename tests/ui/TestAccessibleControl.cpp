#include "AccessibleControl.h"
#include "RequestButton.h"
#include "ToggleSwitch.h"

#include <QAccessibleActionInterface>
#include <QApplication>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QAbstractButton> makeControl(const QString &kind)
{
    if (kind == u"switch")
        return std::make_unique<ToggleSwitch>();
    if (kind == u"card")
        return std::make_unique<RequestButton>(QAccessible::RadioButton);
    auto radio = std::make_unique<QRadioButton>();
    AccessibleControl::attach(radio.get(), QAccessible::RadioButton);
    radio->setText(QStringLiteral("&Always"));
    radio->setAutoExclusive(false);
    return radio;
}

} // namespace

class TestAccessibleControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actionTakesTheClickPath_data();
    void actionTakesTheClickPath();
};

void TestAccessibleControl::actionTakesTheClickPath_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("checksItself");
    QTest::addRow("switch, toggle") << "switch" << QAccessibleActionInterface::toggleAction()
                                    << int(QAccessible::CheckBox) << false;
    QTest::addRow("switch, press") << "switch" << QAccessibleActionInterface::pressAction()
                                   << int(QAccessible::CheckBox) << false;
    QTest::addRow("mode card, toggle") << "card" << QAccessibleActionInterface::toggleAction()
                                       << int(QAccessible::RadioButton) << false;
    // A plain radio row checks itself at once; its owner puts it back after a refusal.
    QTest::addRow("radio row, toggle") << "radio" << QAccessibleActionInterface::toggleAction()
                                       << int(QAccessible::RadioButton) << true;
}

void TestAccessibleControl::actionTakesTheClickPath()
{
    QFETCH(QString, kind);
    QFETCH(QString, action);
    QFETCH(int, role);
    QFETCH(bool, checksItself);
    const std::unique_ptr<QAbstractButton> control = makeControl(kind);
    control->show();
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(control.get());
    QVERIFY(face);
    QCOMPARE(int(face->role()), role);
    if (kind == u"radio")
        QCOMPARE(face->text(QAccessible::Name), u"Always"_s);
    QVERIFY(face->state().checkable);
    QVERIFY(face->actionInterface()->actionNames().contains(action));

    QSignalSpy clicked(control.get(), &QAbstractButton::clicked);
    face->actionInterface()->doAction(action);
    // The same request as a click or Space, and no state that the owner has not set.
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(control->isChecked(), checksItself);
    QCOMPARE(bool(face->state().checked), checksItself);
    // The owner's answer is what the state reads.
    control->setChecked(!checksItself);
    QCOMPARE(bool(face->state().checked), !checksItself);

    control->setEnabled(false);
    QVERIFY(!face->actionInterface()->actionNames().contains(action));
    face->actionInterface()->doAction(action);
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(TestAccessibleControl)
#include "TestAccessibleControl.moc"
