#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

// The operations tovra-ctl offers: one per control worker operation, named as the worker names
// it, taking its arguments in the worker's order as texts that are checked before anything is
// sent.
class CtlOperations
{
public:
    struct Context
    {
        QString socketPath;
        int timeoutMs = 5000;
    };

    // Argument kinds: text, bool ("true"/"false"), list (comma-separated), number (whole),
    // mode (a JSON object with the mode record's keys).
    struct Argument
    {
        QString name;
        QString kind;
    };

    struct Operation
    {
        QString name;
        QList<Argument> arguments;
        std::function<QJsonObject(const Context &, const QStringList &, QString *)> run;
    };

    static const QList<Operation> &all();
    static const Operation *find(const QString &name);
    // Empty when every argument has the right kind; otherwise what is wrong with which one.
    static QString checkArguments(const Operation &operation, const QStringList &arguments);
    static QString helpText();
};
