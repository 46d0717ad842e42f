#include "AccountPage.h"
#include "ControlMetaTypes.h"
#include "WindowFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

UserInfo user(const QString &number, const QString &role, int days, int devices)
{
    UserInfo info;
    info.valid = true;
    info.email = QStringLiteral("demo@tovra.invalid");
    info.userNumber = number;
    info.role = role;
    info.leftDays = days;
    info.maxDeviceCount = devices;
    return info;
}

struct Page
{
    AccountPage page;

    template<typename T>
    T *find(const char *name) const
    {
        return page.findChild<T *>(QString::fromLatin1(name));
    }
    QLineEdit *username() const { return find<QLineEdit>("TovraAccountUsername"); }
    QLineEdit *password() const { return find<QLineEdit>("TovraAccountPassword"); }
    QPushButton *button(const char *name) const { return find<QPushButton>(name); }
    QLabel *message() const { return find<QLabel>("TovraAccountMessage"); }
    QString shownMessage() const { return message()->isHidden() ? QString() : message()->text(); }
    void type(const QString &name, const QString &secret)
    {
        username()->setText(name);
        password()->setText(secret);
    }
};

} // namespace

class TestAccountPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void signIn_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("secret");
        QTest::addColumn<bool>("remember");
        QTest::addColumn<QString>("trigger");
        QTest::addColumn<bool>("sent");
        QTest::addRow("user without a password")
            << "demo@tovra.invalid" << QString() << true << "button" << false;
        QTest::addRow("blank user") << "   "
                                    << "demo" << true << "button" << false;
        QTest::addRow("Return in the user field") << "demo@tovra.invalid"
                                                  << "demo" << false << "user" << true;
    }
    void signIn()
    {
        QFETCH(QString, name);
        QFETCH(QString, secret);
        QFETCH(bool, remember);
        QFETCH(QString, trigger);
        QFETCH(bool, sent);
        Page p;
        QSignalSpy login(&p.page, &AccountPage::loginRequested);
        p.type(name, secret);
        p.find<QCheckBox>("TovraAccountRemember")->setChecked(remember);
        if (trigger == QLatin1String("button"))
            QTest::mouseClick(p.button("TovraAccountSignIn"), Qt::LeftButton);
        else
            QTest::keyClick(p.username(), Qt::Key_Return);
        QCOMPARE(login.size(), sent ? 1 : 0);
        QCOMPARE(p.shownMessage(),
                 sent ? QString() : QStringLiteral("Enter account and password."));
        if (sent)
            QCOMPARE(login.first(), (QVariantList{name, secret, remember}));
        else // nothing was sent, so nothing typed is lost
            QCOMPARE(p.password()->text(), secret);
    }

    // With no daemon, Return sends nothing and the page says why.
    void noSignInWithoutDaemon()
    {
        Page p;
        QSignalSpy login(&p.page, &AccountPage::loginRequested);
        p.type(QStringLiteral("demo@tovra.invalid"), QStringLiteral("demo"));
        p.page.setDaemonUnavailableReason(QStringLiteral("Tovra daemon is not running."));
        QTest::keyClick(p.password(), Qt::Key_Return);
        QTest::keyClick(p.username(), Qt::Key_Return);
        QCOMPARE(login.size(), 0);
        QVERIFY(!p.button("TovraAccountSignIn")->isEnabled());
        QCOMPARE(p.find<QLabel>("TovraAccountUnavailable")->text(),
                 QStringLiteral("Tovra daemon is not running."));
    }

    void sessionStates_data()
    {
        QTest::addColumn<QString>("session");
        QTest::addColumn<bool>("signedIn");
        QTest::addRow("logged_in") << "logged_in" << true;
        QTest::addRow("logged_out") << "logged_out" << false;
    }
    void sessionStates()
    {
        QFETCH(QString, session);
        QFETCH(bool, signedIn);
        Page p;
        p.page.show();
        p.type(QStringLiteral("demo@tovra.invalid"), QStringLiteral("demo"));
        p.page.refresh(session, user(QStringLiteral("10042"), QStringLiteral("SVIP"), 30, 5));
        QCOMPARE(p.page.isSignedInShown(), signedIn);
        QCOMPARE(p.username()->isVisible(), !signedIn);
        // The typed password never stays in the page after sign-in, not even in undo.
        QCOMPARE(p.password()->text().isEmpty(), signedIn);
        QCOMPARE(p.username()->text().isEmpty(), signedIn);
        if (signedIn) {
            p.password()->undo();
            QVERIFY(p.password()->text().isEmpty());
        }
    }

    void summary_data()
    {
        QTest::addColumn<UserInfo>("record");
        QTest::addColumn<QString>("expected");
        QTest::addRow("everything") << user(QStringLiteral("10042"), QStringLiteral("SVIP"), 30, 5)
                                    << "User ID: 10042\nPlan: SVIP\nDays left: 30\n"
                                       "Max simultaneous devices: 5";
        QTest::addRow("no number, plan, days or device limit")
            << user(QString(), QString(), 0, 0) << "User ID: demo@tovra.invalid";
        QTest::addRow("an empty record") << UserInfo() << QString();
    }
    void summary()
    {
        QFETCH(UserInfo, record);
        QFETCH(QString, expected);
        Page p;
        p.page.show();
        p.page.refresh(QStringLiteral("logged_in"), record);
        auto *label = p.find<QLabel>("TovraAccountSummary");
        QCOMPARE(label->text(), expected);
        QCOMPARE(label->isVisible(), !expected.isEmpty());
    }

    void errors_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("shown");
        QTest::addRow("the daemon's words") << "Incorrect email or password."
                                            << "Incorrect email or password.";
        QTest::addRow("no words") << "  "
                                  << "Account operation failed";
    }
    void errors()
    {
        QFETCH(QString, message);
        QFETCH(QString, shown);
        Page p;
        p.type(QStringLiteral("demo@tovra.invalid"), QStringLiteral("wrong"));
        p.page.showError(message);
        QCOMPARE(p.shownMessage(), shown);
        QCOMPARE(p.username()->text(), QStringLiteral("demo@tovra.invalid"));
        QVERIFY(p.password()->text().isEmpty());
        p.page.clearMessage();
        QCOMPARE(p.shownMessage(), QString());
    }

    // What the shell passed down reaches a window created later.
    void replayedToNewWindow()
    {
        WindowFixture f;
        WindowController &controller = f.controller;
        controller.setAccountOperationInProgress(true);
        controller.showAccountError(QStringLiteral("Incorrect email or password."));
        controller.setDaemonUnavailableReason(QStringLiteral("Tovra daemon is not running."));
        controller.showAccount();
        auto *page = controller.window()->findChild<AccountPage *>();
        auto *message = page->findChild<QLabel *>(QStringLiteral("TovraAccountMessage"));
        QCOMPARE(message->text(), QStringLiteral("Incorrect email or password."));
        auto *signIn = page->findChild<QPushButton *>(QStringLiteral("TovraAccountSignIn"));
        QCOMPARE(signIn->text(), QStringLiteral("Signing in..."));
        controller.clearAccountMessage();
        controller.setAccountOperationInProgress(false);
        QVERIFY(message->isHidden());
        QVERIFY(!signIn->isEnabled()); // still no daemon
        QCOMPARE(controller.replayState().accountError, QString());
    }
};

QTEST_MAIN(TestAccountPage)
#include "TestAccountPage.moc"
