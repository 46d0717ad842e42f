#pragma once

#include <QString>
#include <QStringList>

#include <cstdio>

// Keeps a password off the command line, where every local user can read it in the process
// list and the shell keeps it in its history: "-" reads it from standard input, and a missing
// one is asked for on the terminal without echo.
class PasswordInput
{
public:
    // Rewrites login's arguments (USER PASSWORD REMEMBER, with PASSWORD "-" or left out, and
    // REMEMBER optional then) into the full three. Returns an empty text on success, else
    // what is wrong.
    static QString resolveLoginArguments(QStringList *arguments, FILE *input);

    // The first line of the stream without its line ending; false at end of input.
    static bool readLine(FILE *input, QString *line);

private:
    static bool promptWithoutEcho(FILE *input, QString *password);
};
