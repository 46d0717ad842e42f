#include "ConfirmDialog.h"
#include "KillSwitchConfirm.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

enum class Answer { Accept, Alternate, Cancel, Escape, EnterKey, Close };
enum class Asked { VpnMode, Proxy };

// What the dialog showed: title, message, then "text|description" of each visible button.
using Seen = QStringList;

// Answers the next modal dialog once it is up, through its real buttons or keys.
void answerNextDialog(Answer answer, Seen *seen)
{
    QTimer::singleShot(0, qApp, [answer, seen] {
        auto *dialog = qobject_cast<ConfirmDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            answerNextDialog(answer, seen);
            return;
        }
        *seen << dialog->windowTitle()
              << dialog->findChild<QWidget *>(QStringLiteral("TovraConfirmMessage"))
                     ->property("text")
                     .toString();
        for (QPushButton *button :
             {dialog->acceptButton(), dialog->alternateButton(), dialog->cancelButton()}) {
            if (!button->isHidden()) {
                *seen << button->text() + QLatin1Char('|') + button->toolTip();
            }
        }
        if (answer == Answer::Escape || answer == Answer::EnterKey) {
            QTest::keyClick(dialog, answer == Answer::Escape ? Qt::Key_Escape : Qt::Key_Return);
        } else if (answer == Answer::Close) {
            dialog->close();
        } else {
            QTest::mouseClick(answer == Answer::Accept      ? dialog->acceptButton()
                              : answer == Answer::Alternate ? dialog->alternateButton()
                                                            : dialog->cancelButton(),
                              Qt::LeftButton);
        }
    });
}

} // namespace

class TestConfirmDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killSwitchDialogs_data();
    void killSwitchDialogs();
    void destructiveVariant();
};

void TestConfirmDialog::killSwitchDialogs_data()
{
    QTest::addColumn<Asked>("asked");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("expected");
    QTest::addRow("vpn mode: switch to auto") << Asked::VpnMode << Answer::Accept << 1;
    QTest::addRow("vpn mode: enter accepts") << Asked::VpnMode << Answer::EnterKey << 1;
    QTest::addRow("vpn mode: choose mode") << Asked::VpnMode << Answer::Alternate << 2;
    QTest::addRow("vpn mode: escape") << Asked::VpnMode << Answer::Escape << 0;
    QTest::addRow("vpn mode: closed") << Asked::VpnMode << Answer::Close << 0;
    QTest::addRow("proxy: open settings") << Asked::Proxy << Answer::Accept << 1;
    QTest::addRow("proxy: cancel") << Asked::Proxy << Answer::Cancel << 0;
}

void TestConfirmDialog::killSwitchDialogs()
{
    QFETCH(Asked, asked);
    QFETCH(Answer, answer);
    QFETCH(int, expected);
    QWidget parent;
    parent.show();
    Seen seen;
    answerNextDialog(answer, &seen);
    if (asked == Asked::VpnMode) {
        QCOMPARE(confirmKillSwitchNeedsVpnMode(nullptr), expected);
        QCOMPARE(seen, QStringList({
                           QStringLiteral("Kill Switch needs a VPN mode"),
                           QStringLiteral("Kill Switch can\u2019t run in Tovra Proxy. Switch to "
                                          "Auto (recommended), TovraVPN, or WireGuard to enable "
                                          "it."),
                           QStringLiteral("Switch to Auto and enable|Switch to Auto and enable "
                                          "Kill Switch"),
                           QStringLiteral("Choose mode\u2026|Choose a mode for Kill Switch"),
                           QStringLiteral("Cancel|Cancel"),
                       }));
    } else {
        QCOMPARE(confirmProxyNeedsKillSwitchOff(&parent), expected);
        QCOMPARE(seen, QStringList({
                           QStringLiteral("Tovra Proxy needs Kill Switch off"),
                           QStringLiteral("Kill Switch blocks Tovra Proxy. Turn Kill Switch off "
                                          "in Settings first, then switch modes."),
                           QStringLiteral("Open Settings|Open Settings to turn off Kill Switch"),
                           QStringLiteral("Cancel|Cancel"),
                       }));
    }
}

void TestConfirmDialog::destructiveVariant()
{
    ConfirmDialog dialog;
    QCOMPARE(dialog.acceptButton()->property("tovraDestructive").toString(),
             QStringLiteral("false"));
    dialog.setAcceptButton(QStringLiteral("Sign Out"), QStringLiteral("Sign out now"));
    dialog.setDestructive(true);
    QCOMPARE(dialog.acceptButton()->accessibleDescription(), QStringLiteral("Sign out now"));
    dialog.resize(420, 200);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    // Filled with the danger red of the theme; sampled beside the text, inside the border.
    const QImage image = dialog.acceptButton()->grab().toImage();
    QCOMPARE(image.pixelColor(4, image.height() / 2).rgb(),
             QColor(QStringLiteral("#D93520")).rgb());
}

QTEST_MAIN(TestConfirmDialog)
#include "TestConfirmDialog.moc"
