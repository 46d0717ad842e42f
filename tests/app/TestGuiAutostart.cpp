#include "GuiAutostart.h"

#include "TempXdgDirs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestGuiAutostart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dirs = std::make_unique<TempXdgDirs>(); }
    void cleanup() { m_dirs.reset(); }

    void enableWritesPrivateEntry()
    {
        // An entry of an older install is replaced, through an atomic save that leaves no
        // temporary file behind. Inside the Exec line's double quotes \ " ` $ take a backslash.
        QVERIFY(GuiAutostart({}, u"/old/place/tovra"_s).reconcile(true, nullptr));
        const QString path = u"/home/zo\u00eb/My \"Apps\"/$d/`e`/f\\g/tovra"_s;
        const GuiAutostart autostart({}, path);
        QString error;
        QVERIFY(autostart.reconcile(true, &error));
        QCOMPARE(error, QString());
        QCOMPARE(readFile(autostart.entryPath()),
                 QByteArray("[Desktop Entry]\n"
                            "Type=Application\n"
                            "Name=Tovra VPN\n"
                            "Comment=Start Tovra VPN in the desktop session\n"
                            "Exec=\"/home/zo\xc3\xab/My \\\"Apps\\\"/\\$d/\\`e\\`/f\\\\g/tovra\" "
                            "--tovra-autostart\n"
                            "TryExec=/home/zo\xc3\xab/My \"Apps\"/$d/`e`/f\\g/tovra\n"
                            "Icon=com.tovra.vpn\n"
                            "Terminal=false\n"
                            "NoDisplay=true\n"
                            "X-GNOME-Autostart-enabled=true\n"
                            "X-TovraVPN-Autostart=true\n"));
        QCOMPARE(QDir(m_dirs->configHome() + u"/autostart"_s).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"com.tovra.vpn.desktop"_s});
        const QFileDevice::Permissions userBits(0x0700); // repeat the owner bits for its owner
        QCOMPARE(QFileInfo(autostart.entryPath()).permissions() & ~userBits,
                 QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }

    void configDirectory_data()
    {
        QTest::addColumn<QString>("explicitDir");
        QTest::addColumn<QString>("xdgConfigHome");
        QTest::addColumn<QString>("expectedDir"); // relative to the temporary root
        QTest::addRow("XDG_CONFIG_HOME cleaned") << u""_s << u" xdg//sub/../ "_s << u"xdg"_s;
        QTest::addRow("explicit wins") << u" given/ "_s << u"xdg"_s << u"given"_s;
    }

    void configDirectory()
    {
        QFETCH(QString, explicitDir);
        QFETCH(QString, xdgConfigHome);
        QFETCH(QString, expectedDir);
        const QString root = m_dirs->root() + u'/';
        const auto absolute = [&root](const QString &text) {
            return text.trimmed().isEmpty() ? text : root + text.trimmed() + u' ';
        };
        qputenv("XDG_CONFIG_HOME", absolute(xdgConfigHome).toLocal8Bit());
        const GuiAutostart autostart(absolute(explicitDir), u"/usr/bin/tovra"_s);
        QCOMPARE(autostart.entryPath(), root + expectedDir + u"/autostart/com.tovra.vpn.desktop"_s);
    }

    void disable_data()
    {
        QTest::addColumn<bool>("existing");
        QTest::addRow("removes the entry") << true;
        QTest::addRow("nothing to remove") << false;
    }

    void disable()
    {
        QFETCH(bool, existing);
        const GuiAutostart autostart({}, u"/usr/bin/tovra"_s);
        QVERIFY(!existing || autostart.reconcile(true, nullptr));
        QString error;
        QVERIFY(autostart.reconcile(false, &error));
        QCOMPARE(error, QString());
        QVERIFY(!QFileInfo::exists(autostart.entryPath()));
        // Disabling never creates the directory it would have removed a file from.
        QCOMPARE(QFileInfo::exists(m_dirs->configHome() + u"/autostart"_s), existing);
    }

    void failures_data()
    {
        QTest::addColumn<QString>("executable");
        QTest::addColumn<QString>("obstacle"); // made a directory (or file) in the way
        QTest::addColumn<bool>("enable");
        QTest::addColumn<QString>("message");
        const QString entryDir = u"dir:autostart/com.tovra.vpn.desktop/x"_s;
        QTest::addRow("relative executable")
            << u"bin/tovra"_s << QString() << true
            << u"Could not resolve the Tovra executable for login startup."_s;
        QTest::addRow("autostart is a file") << u"/usr/bin/tovra"_s << u"file:autostart"_s << true
                                             << u"Could not prepare the login startup directory."_s;
        QTest::addRow("entry is a directory") << u"/usr/bin/tovra"_s << entryDir << true
                                              << u"Could not update Tovra login startup."_s;
        QTest::addRow("entry cannot be removed") << u"/usr/bin/tovra"_s << entryDir << false
                                                 << u"Could not remove Tovra from login startup."_s;
    }

    void failures()
    {
        QFETCH(QString, executable);
        QFETCH(QString, obstacle);
        QFETCH(bool, enable);
        QFETCH(QString, message);
        const QString target = m_dirs->configHome() + u'/' + obstacle.section(u':', 1);
        if (obstacle.startsWith(u"dir:"))
            QVERIFY(QDir().mkpath(target));
        QFile file(target);
        if (obstacle.startsWith(u"file:"))
            QVERIFY(file.open(QIODevice::WriteOnly));
        const GuiAutostart autostart({}, executable);
        QString error;
        QVERIFY(!autostart.reconcile(enable, &error));
        QCOMPARE(error, message);
    }

private:
    std::unique_ptr<TempXdgDirs> m_dirs;
};

QTEST_GUILESS_MAIN(TestGuiAutostart)
#include "TestGuiAutostart.moc"
