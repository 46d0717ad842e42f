#include "ConfirmDialog.h"
#include "KillSwitchConfirm.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

enum class Answer { Accept, Alternate, Cancel, Escape, EnterKey };
enum class Asked { VpnMode, Proxy };

// Answers the next modal dialog once it is up, through its real buttons or keys; counts the
// buttons it showed.
void answerNextDialog(Answer answer, int *buttons)
{
    QTimer::singleShot(0, qApp, [answer, buttons] {
        auto *dialog = qobject_cast<ConfirmDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            answerNextDialog(answer, buttons);
            return;
        }
        for (QPushButton *button :
             {dialog->acceptButton(), dialog->alternateButton(), dialog->cancelButton()})
            *buttons += button->isHidden() ? 0 : 1;
        if (answer == Answer::Escape || answer == Answer::EnterKey) {
            QTest::keyClick(dialog, answer == Answer::Escape ? Qt::Key_Escape : Qt::Key_Return);
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
    void killSwitchDialogs_data()
    {
        QTest::addColumn<Asked>("asked");
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<int>("expected");
        QTest::addRow("vpn mode: switch to auto") << Asked::VpnMode << Answer::Accept << 1;
        QTest::addRow("vpn mode: enter accepts") << Asked::VpnMode << Answer::EnterKey << 1;
        QTest::addRow("vpn mode: choose mode") << Asked::VpnMode << Answer::Alternate << 2;
        QTest::addRow("vpn mode: escape") << Asked::VpnMode << Answer::Escape << 0;
        QTest::addRow("proxy: open settings") << Asked::Proxy << Answer::Accept << 1;
        QTest::addRow("proxy: cancel") << Asked::Proxy << Answer::Cancel << 0;
    }

    void killSwitchDialogs()
    {
        QFETCH(Asked, asked);
        QFETCH(Answer, answer);
        QFETCH(int, expected);
        QWidget parent;
        parent.show();
        int buttons = 0;
        answerNextDialog(answer, &buttons);
        if (asked == Asked::VpnMode)
            QCOMPARE(confirmKillSwitchNeedsVpnMode(nullptr), expected);
        else
            QCOMPARE(confirmProxyNeedsKillSwitchOff(&parent), expected);
        QCOMPARE(buttons, asked == Asked::VpnMode ? 3 : 2);
    }

    void destructiveVariant()
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
};

QTEST_MAIN(TestConfirmDialog)
#include "TestConfirmDialog.moc"
