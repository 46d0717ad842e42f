#include "GuiAutostart.h"

#include "TempXdgDirs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The desktop-entry rule for a quoted argument: inside double quotes a backslash escapes the
// next character (", `, $ and \ are the ones that need it). Returns the arguments of Exec.
QStringList parseExec(const QString &value)
{
    QStringList args;
    QString current;
    bool inQuotes = false;
    bool haveArg = false;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = value.at(i);
        if (inQuotes) {
            if (c == u'\\' && i + 1 < value.size()) {
                current.append(value.at(++i));
            } else if (c == u'"') {
                inQuotes = false;
            } else {
                current.append(c);
            }
        } else if (c == u'"') {
            inQuotes = true;
            haveArg = true;
        } else if (c == u' ') {
            if (haveArg)
                args.append(current);
            current.clear();
            haveArg = false;
        } else {
            current.append(c);
            haveArg = true;
        }
    }
    if (haveArg)
        args.append(current);
    return args;
}

QString entryValue(const QByteArray &contents, const QString &key)
{
    const QStringList lines = QString::fromUtf8(contents).split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(key + u'='))
            return line.mid(key.size() + 1);
    }
    return {};
}

} // namespace

class TestGuiAutostart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void entryBytes();
    void execRoundTrip_data();
    void execRoundTrip();
    void configDirectory_data();
    void configDirectory();
    void enableWritesPrivateFile();
    void enableRewritesAnOlderEntry();
    void disable_data();
    void disable();
    void failures_data();
    void failures();

private:
    std::unique_ptr<TempXdgDirs> m_dirs;
};

void TestGuiAutostart::init()
{
    m_dirs = std::make_unique<TempXdgDirs>();
    QVERIFY(m_dirs->isValid());
}

void TestGuiAutostart::cleanup()
{
    m_dirs.reset();
}

void TestGuiAutostart::entryBytes()
{
    const GuiAutostart autostart({}, u"/opt/tovra/bin/tovra"_s);
    QVERIFY(autostart.reconcile(true, nullptr));
    QFile file(autostart.entryPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Tovra VPN\n"
                                        "Comment=Start Tovra VPN in the desktop session\n"
                                        "Exec=\"/opt/tovra/bin/tovra\" --tovra-autostart\n"
                                        "TryExec=/opt/tovra/bin/tovra\n"
                                        "Icon=com.tovra.vpn\n"
                                        "Terminal=false\n"
                                        "NoDisplay=true\n"
                                        "X-GNOME-Autostart-enabled=true\n"
                                        "X-TovraVPN-Autostart=true\n"));
}

void TestGuiAutostart::execRoundTrip_data()
{
    QTest::addColumn<QString>("path");
    QTest::addRow("space") << "/home/ann/My Apps/tovra";
    QTest::addRow("double quote") << "/home/ann/\"quoted\"/tovra";
    QTest::addRow("dollar") << "/home/ann/$HOME/tovra";
    QTest::addRow("backquote") << "/home/ann/`id`/tovra";
    QTest::addRow("backslash") << "/home/ann/back\\slash/tovra";
    QTest::addRow("all at once") << "/tmp/a b/\"c\"/$d/`e`/f\\g";
    QTest::addRow("non-ascii") << QString::fromUtf8("/home/zoë/Programme/tovra");
}

void TestGuiAutostart::execRoundTrip()
{
    QFETCH(QString, path);
    const GuiAutostart autostart({}, path);
    QVERIFY(autostart.reconcile(true, nullptr));
    QFile file(autostart.entryPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray contents = file.readAll();
    QCOMPARE(parseExec(entryValue(contents, u"Exec"_s)),
             (QStringList{path, u"--tovra-autostart"_s}));
    QCOMPARE(entryValue(contents, u"TryExec"_s), path);
}

void TestGuiAutostart::configDirectory_data()
{
    QTest::addColumn<QString>("explicitDir");
    QTest::addColumn<QString>("xdgConfigHome");
    QTest::addColumn<QString>("expectedDir"); // relative to the temporary root
    QTest::addRow("XDG_CONFIG_HOME") << ""
                                     << "xdg"
                                     << "xdg";
    QTest::addRow("XDG_CONFIG_HOME blanks is unset") << ""
                                                     << "   "
                                                     << "home/.config";
    QTest::addRow("XDG_CONFIG_HOME cleaned") << ""
                                             << " xdg//sub/../ "
                                             << "xdg";
    QTest::addRow("explicit wins") << " given/ "
                                   << "xdg"
                                   << "given";
}

void TestGuiAutostart::configDirectory()
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
    QCOMPARE(autostart.entryPath(), QString(root + expectedDir + u"/autostart/com.tovra.vpn.desktop"));
}

void TestGuiAutostart::enableWritesPrivateFile()
{
    const GuiAutostart autostart({}, u"/usr/bin/tovra"_s);
    QCOMPARE(autostart.entryPath(), QString(m_dirs->configHome() + u"/autostart/com.tovra.vpn.desktop"));
    QString error;
    QVERIFY(autostart.reconcile(true, &error));
    QCOMPARE(error, QString());
    QCOMPARE(QFileInfo(autostart.entryPath()).permissions() &
                 (QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                  QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                  QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther),
             QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    // No temporary file of the atomic save is left behind.
    QCOMPARE(
        QDir(QFileInfo(autostart.entryPath()).absolutePath()).entryList(QDir::Files | QDir::Hidden),
        QStringList{u"com.tovra.vpn.desktop"_s});
}

void TestGuiAutostart::enableRewritesAnOlderEntry()
{
    QVERIFY(GuiAutostart({}, u"/old/place/tovra"_s).reconcile(true, nullptr));
    const GuiAutostart moved({}, u"/new/place/tovra"_s);
    QVERIFY(moved.reconcile(true, nullptr));
    QFile file(moved.entryPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), moved.entryContents());
}

void TestGuiAutostart::disable_data()
{
    QTest::addColumn<bool>("existing");
    QTest::addRow("removes the entry") << true;
    QTest::addRow("nothing to remove") << false;
}

void TestGuiAutostart::disable()
{
    QFETCH(bool, existing);
    const GuiAutostart autostart({}, u"/usr/bin/tovra"_s);
    if (existing)
        QVERIFY(autostart.reconcile(true, nullptr));
    QString error;
    QVERIFY(autostart.reconcile(false, &error));
    QCOMPARE(error, QString());
    QVERIFY(!QFileInfo::exists(autostart.entryPath()));
    // Disabling never creates the directory it would have removed a file from.
    QCOMPARE(QFileInfo::exists(m_dirs->configHome() + u"/autostart"_s), existing);
}

void TestGuiAutostart::failures_data()
{
    QTest::addColumn<QString>("executable");
    QTest::addColumn<QString>("obstacle"); // made a directory (or file) in the way
    QTest::addColumn<bool>("enable");
    QTest::addColumn<QString>("message");
    QTest::addRow("relative executable")
        << "bin/tovra"
        << "" << true << "Could not resolve the Tovra executable for login startup.";
    QTest::addRow("autostart is a file")
        << "/usr/bin/tovra"
        << "file:autostart" << true << "Could not prepare the login startup directory.";
    QTest::addRow("entry is a directory") << "/usr/bin/tovra"
                                          << "dir:autostart/com.tovra.vpn.desktop/x" << true
                                          << "Could not update Tovra login startup.";
    QTest::addRow("entry cannot be removed") << "/usr/bin/tovra"
                                             << "dir:autostart/com.tovra.vpn.desktop/x" << false
                                             << "Could not remove Tovra from login startup.";
}

void TestGuiAutostart::failures()
{
    QFETCH(QString, executable);
    QFETCH(QString, obstacle);
    QFETCH(bool, enable);
    QFETCH(QString, message);

    const QString target = m_dirs->configHome() + u'/' + obstacle.section(u':', 1);
    if (obstacle.startsWith(u"dir:")) {
        QVERIFY(QDir().mkpath(target));
    } else if (obstacle.startsWith(u"file:")) {
        QFile file(target);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const GuiAutostart autostart({}, executable);
    QString error;
    QVERIFY(!autostart.reconcile(enable, &error));
    QCOMPARE(error, message);
}

QTEST_GUILESS_MAIN(TestGuiAutostart)
#include "TestGuiAutostart.moc"
