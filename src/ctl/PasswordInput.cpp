#include "PasswordInput.h"

#include <QByteArray>

#include <termios.h>
#include <unistd.h>

namespace {

const QString kStdinMarker = QStringLiteral("-");

bool isRememberWord(const QString &text)
{
    return text == QLatin1String("true") || text == QLatin1String("false");
}

} // namespace

bool PasswordInput::readLine(FILE *input, QString *line)
{
    QByteArray bytes;
    int c = 0;
    bool any = false;
    while ((c = std::fgetc(input)) != EOF) {
        any = true;
        if (c == '\n')
            break;
        bytes.append(char(c));
    }
    if (!any)
        return false;
    if (bytes.endsWith('\r'))
        bytes.chop(1);
    *line = QString::fromUtf8(bytes);
    return true;
}

bool PasswordInput::promptWithoutEcho(FILE *input, QString *password)
{
    const int fd = fileno(input);
    termios saved{};
    if (tcgetattr(fd, &saved) != 0)
        return false;
    termios quiet = saved;
    quiet.c_lflag &= ~tcflag_t(ECHO);
    std::fputs("Password: ", stderr);
    std::fflush(stderr);
    tcsetattr(fd, TCSAFLUSH, &quiet);
    const bool ok = readLine(input, password);
    tcsetattr(fd, TCSAFLUSH, &saved);
    std::fputs("\n", stderr);
    return ok;
}

QString PasswordInput::resolveLoginArguments(QStringList *arguments, FILE *input)
{
    QStringList &args = *arguments;
    const bool fromStdin = args.size() >= 2 && args.at(1) == kStdinMarker;
    const bool missing = args.size() == 1 || (args.size() == 2 && isRememberWord(args.at(1)));
    if (!fromStdin && !missing)
        return {};

    const QString remember =
        fromStdin ? args.value(2, QStringLiteral("false")) : args.value(1, QStringLiteral("false"));
    if (args.size() > 3)
        return QStringLiteral("login takes USER [PASSWORD|-] [REMEMBER]");
    QString password;
    if (fromStdin) {
        if (!readLine(input, &password))
            return QStringLiteral("no password on standard input");
    } else if (!isatty(fileno(input)) || !promptWithoutEcho(input, &password)) {
        return QStringLiteral("login needs a password; give - to read it from standard input");
    }
    if (password.isEmpty())
        return QStringLiteral("the password is empty");
    args = QStringList{args.at(0), password, remember};
    return {};
}
