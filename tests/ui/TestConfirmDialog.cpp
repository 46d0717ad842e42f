#include "ConfirmDialog.h"
#include "KillSwitchConfirm.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

enum class Answer { Accept, Alternate, Cancel, Escape, EnterKey, Close };

struct Seen
{
    QString title;
    QString message;
    QStringList buttons;
    QStringList descriptions;
    bool alternateVisible = false;
};

// Answers the next modal dialog once it is up, through its real buttons or keys.
void answerNextDialog(Answer answer, Seen *seen)
{
    QTimer::singleShot(0, qApp, [answer, seen] {
        auto *dialog = qobject_cast<ConfirmDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            answerNextDialog(answer, seen);
            return;
        }
        seen->title = dialog->windowTitle();
        seen->message = dialog->findChild<QWidget *>(QStringLiteral("TovraConfirmMessage"))
                            ->property("text")
                            .toString();
        seen->alternateVisible = !dialog->alternateButton()->isHidden();
        for (QPushButton *button :
             {dialog->acceptButton(), dialog->alternateButton(), dialog->cancelButton()}) {
            seen->buttons.append(button->text());
            seen->descriptions.append(button->toolTip());
        }
        switch (answer) {
        case Answer::Accept:
            QTest::mouseClick(dialog->acceptButton(), Qt::LeftButton);
            break;
        case Answer::Alternate:
            QTest::mouseClick(dialog->alternateButton(), Qt::LeftButton);
            break;
        case Answer::Cancel:
            QTest::mouseClick(dialog->cancelButton(), Qt::LeftButton);
            break;
        case Answer::Escape:
            QTest::keyClick(dialog, Qt::Key_Escape);
            break;
        case Answer::EnterKey:
            QTest::keyClick(dialog, Qt::Key_Return);
            break;
        case Answer::Close:
            dialog->close();
            break;
        }
    });
}

} // namespace

class TestConfirmDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void vpnModeDialog_data();
    void vpnModeDialog();
    void proxyDialog_data();
    void proxyDialog();
    void destructiveVariant();
};

void TestConfirmDialog::vpnModeDialog_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("expected");
    QTest::addRow("switch to auto") << Answer::Accept << 1;
    QTest::addRow("enter accepts") << Answer::EnterKey << 1;
    QTest::addRow("choose mode") << Answer::Alternate << 2;
    QTest::addRow("cancel") << Answer::Cancel << 0;
    QTest::addRow("escape") << Answer::Escape << 0;
    QTest::addRow("closed") << Answer::Close << 0;
}

void TestConfirmDialog::vpnModeDialog()
{
    QFETCH(Answer, answer);
    QFETCH(int, expected);
    Seen seen;
    answerNextDialog(answer, &seen);
    QCOMPARE(confirmKillSwitchNeedsVpnMode(nullptr), expected);
    QCOMPARE(seen.title, QStringLiteral("Kill Switch needs a VPN mode"));
    QCOMPARE(seen.message, QStringLiteral("Kill Switch can\u2019t run in Tovra Proxy. Switch to "
                                          "Auto (recommended), TovraVPN, or WireGuard to enable "
                                          "it."));
    QCOMPARE(seen.buttons,
             QStringList({QStringLiteral("Switch to Auto and enable"),
                          QStringLiteral("Choose mode\u2026"), QStringLiteral("Cancel")}));
    QCOMPARE(
        seen.descriptions,
        QStringList({QStringLiteral("Switch to Auto and enable Kill Switch"),
                     QStringLiteral("Choose a mode for Kill Switch"), QStringLiteral("Cancel")}));
    QVERIFY(seen.alternateVisible);
}

void TestConfirmDialog::proxyDialog_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("expected");
    QTest::addRow("open settings") << Answer::Accept << 1;
    QTest::addRow("cancel") << Answer::Cancel << 0;
    QTest::addRow("escape") << Answer::Escape << 0;
}

void TestConfirmDialog::proxyDialog()
{
    QFETCH(Answer, answer);
    QFETCH(int, expected);
    QWidget parent;
    parent.show();
    Seen seen;
    answerNextDialog(answer, &seen);
    QCOMPARE(confirmProxyNeedsKillSwitchOff(&parent), expected);
    QCOMPARE(seen.title, QStringLiteral("Tovra Proxy needs Kill Switch off"));
    QCOMPARE(seen.message, QStringLiteral("Kill Switch blocks Tovra Proxy. Turn Kill Switch off "
                                          "in Settings first, then switch modes."));
    QCOMPARE(seen.buttons.at(0), QStringLiteral("Open Settings"));
    QCOMPARE(seen.descriptions.at(0), QStringLiteral("Open Settings to turn off Kill Switch"));
    QCOMPARE(seen.buttons.at(2), QStringLiteral("Cancel"));
    QVERIFY(!seen.alternateVisible);
}

void TestConfirmDialog::destructiveVariant()
{
    ConfirmDialog dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("TovraConfirmDialog"));
    QCOMPARE(dialog.acceptButton()->property("tovraDestructive").toString(),
             QStringLiteral("false"));
    dialog.setAcceptButton(QStringLiteral("Sign Out"), QStringLiteral("Sign out now"));
    dialog.setDestructive(true);
    QCOMPARE(dialog.acceptButton()->property("tovraDestructive").toString(),
             QStringLiteral("true"));
    QCOMPARE(dialog.acceptButton()->accessibleDescription(), QStringLiteral("Sign out now"));
    dialog.resize(420, 200);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    // Filled with the danger red of the theme; sampled beside the text, inside the border.
    const QImage image = dialog.acceptButton()->grab().toImage();
    const QColor fill = image.pixelColor(4, image.height() / 2);
    QCOMPARE(fill.rgb(), QColor(QStringLiteral("#D93520")).rgb());
}

QTEST_MAIN(TestConfirmDialog)
#include "TestConfirmDialog.moc"
