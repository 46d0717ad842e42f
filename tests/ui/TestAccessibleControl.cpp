#include "AccessibleControl.h"
#include "RequestButton.h"
#include "RequestRadioButton.h"
#include "ToggleSwitch.h"

#include <QAccessibleActionInterface>
#include <QApplication>
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
    return std::make_unique<RequestRadioButton>(QStringLiteral("&Always"));
}

} // namespace

class TestAccessibleControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actionTakesTheClickPath_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("role");
        QTest::addRow("switch, toggle")
            << "switch" << QAccessibleActionInterface::toggleAction() << int(QAccessible::CheckBox);
        QTest::addRow("switch, press")
            << "switch" << QAccessibleActionInterface::pressAction() << int(QAccessible::CheckBox);
        QTest::addRow("mode card, toggle") << "card" << QAccessibleActionInterface::toggleAction()
                                           << int(QAccessible::RadioButton);
        QTest::addRow("option row, press") << "radio" << QAccessibleActionInterface::pressAction()
                                           << int(QAccessible::RadioButton);
    }

    void actionTakesTheClickPath()
    {
        QFETCH(QString, kind);
        QFETCH(QString, action);
        QFETCH(int, role);
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
        QVERIFY(!control->isChecked());
        QVERIFY(!face->state().checked);
        // The owner's answer is what the state reads.
        control->setChecked(true);
        QVERIFY(face->state().checked);

        control->setEnabled(false);
        QVERIFY(!face->actionInterface()->actionNames().contains(action));
        face->actionInterface()->doAction(action);
        QCOMPARE(clicked.count(), 1);
    }
};

QTEST_MAIN(TestAccessibleControl)
#include "TestAccessibleControl.moc"
