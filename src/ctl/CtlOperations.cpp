#include "CtlOperations.h"

#include "ControlEndpoints.h"
#include "RecordJson.h"

#include <QJsonDocument>

namespace {

using Args = QStringList;
using Context = CtlOperations::Context;

bool toBool(const QString &text)
{
    return text == QLatin1String("true");
}

QStringList toList(const QString &text)
{
    QStringList items;
    const QStringList parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        if (!part.trimmed().isEmpty())
            items.append(part.trimmed());
    }
    return items;
}

ModeInfo toMode(const QString &text)
{
    return ModeInfo::fromJson(QJsonDocument::fromJson(text.toUtf8()).object());
}

template<typename Call>
std::function<QJsonObject(const Context &, const Args &, QString *)> op(Call call)
{
    return [call](const Context &c, const Args &a, QString *e) {
        return RecordJson::toJson(call(c, a, e));
    };
}

QList<CtlOperations::Operation> buildOperations()
{
    using E = ControlEndpoints;
    const auto text = [](const char *name) {
        return CtlOperations::Argument{QLatin1String(name), QStringLiteral("text")};
    };
    const auto flag = [](const char *name) {
        return CtlOperations::Argument{QLatin1String(name), QStringLiteral("bool")};
    };
    const CtlOperations::Argument list{QStringLiteral("servers"), QStringLiteral("list")};
    const CtlOperations::Argument number{QStringLiteral("expectedVersionNum"),
                                         QStringLiteral("number")};
    const CtlOperations::Argument mode{QStringLiteral("mode"), QStringLiteral("mode")};

    return {
        {QStringLiteral("fetchStatus"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::fetchStatus(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("fetchVersion"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::fetchVersion(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("fetchAPIURLConfig"),
         {},
         op([](const Context &c, const Args &, QString *e) {
             return E::fetchAPIURLConfig(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("setAPIURL"),
         {text("apiURL")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setAPIURL(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("resetAPIURL"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::resetAPIURL(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("setAutoConnectPreference"),
         {text("value")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setAutoConnectPreference(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("fetchLanguageConfig"),
         {},
         op([](const Context &c, const Args &, QString *e) {
             return E::fetchLanguageConfig(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("setLanguage"),
         {text("source"), text("language")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setLanguage(c.socketPath, a[0], a[1], c.timeoutMs, e);
         })},
        {QStringLiteral("setLanguageIfSource"),
         {text("source"), text("language"), text("ifSource")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setLanguageIfSource(c.socketPath, a[0], a[1], a[2], c.timeoutMs, e);
         })},
        {QStringLiteral("checkUpdate"),
         {text("version")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::checkUpdate(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("startGUIUpdateDownload"),
         {text("version"), number},
         op([](const Context &c, const Args &a, QString *e) {
             return E::startGUIUpdateDownload(c.socketPath, a[0], a[1].toLongLong(), c.timeoutMs,
                                              e);
         })},
        {QStringLiteral("fetchGUIUpdateDownload"),
         {},
         op([](const Context &c, const Args &, QString *e) {
             return E::fetchGUIUpdateDownload(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("cancelGUIUpdateDownload"),
         {},
         op([](const Context &c, const Args &, QString *e) {
             return E::cancelGUIUpdateDownload(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("fetchUser"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::fetchUser(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("fetchPurchaseURL"),
         {text("lang")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::fetchPurchaseURL(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("fetchNodes"),
         {flag("refresh")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::fetchNodes(c.socketPath, toBool(a[0]), c.timeoutMs, e);
         })},
        {QStringLiteral("setNodeFavorite"),
         {text("node"), flag("favorite")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setNodeFavorite(c.socketPath, a[0], toBool(a[1]), c.timeoutMs, e);
         })},
        {QStringLiteral("fetchNodeGroups"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::fetchNodeGroups(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("fetchConfigPaths"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::fetchConfigPaths(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("fetchKillSwitch"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::fetchKillSwitch(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("setKillSwitchEnabled"),
         {flag("enabled")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setKillSwitchEnabled(c.socketPath, toBool(a[0]), c.timeoutMs, e);
         })},
        {QStringLiteral("setKillSwitchMode"),
         {text("mode")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setKillSwitchMode(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("setKillSwitchAllowLAN"),
         {flag("enabled")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setKillSwitchAllowLAN(c.socketPath, toBool(a[0]), c.timeoutMs, e);
         })},
        {QStringLiteral("connectRuntime"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::connectRuntime(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("connectNode"),
         {text("node")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::connectNode(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("connectSmart"),
         {text("selector")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::connectSmart(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("disconnectRuntime"),
         {},
         op([](const Context &c, const Args &, QString *e) {
             return E::disconnectRuntime(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("login"),
         {text("username"), text("password"), flag("rememberMe")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::login(c.socketPath, a[0], a[1], toBool(a[2]), c.timeoutMs, e);
         })},
        {QStringLiteral("logout"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::logout(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("setMode"), {mode}, op([](const Context &c, const Args &a, QString *e) {
             return E::setMode(c.socketPath, toMode(a[0]), c.timeoutMs, e);
         })},
        {QStringLiteral("setSystemProxyPreference"),
         {text("value")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setSystemProxyPreference(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("setLocalNetworkPreference"),
         {text("value")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setLocalNetworkPreference(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("setProxyLANPreference"),
         {flag("enabled")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setProxyLANPreference(c.socketPath, toBool(a[0]), c.timeoutMs, e);
         })},
        {QStringLiteral("setProxyListeners"),
         {text("socksAddress"), text("httpAddress")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setProxyListeners(c.socketPath, a[0], a[1], c.timeoutMs, e);
         })},
        {QStringLiteral("fetchSplitDNS"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::fetchSplitDNS(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("setSplitDNSLocal"),
         {list},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setSplitDNSLocal(c.socketPath, toList(a[0]), c.timeoutMs, e);
         })},
        {QStringLiteral("setSplitDNSPolicy"),
         {text("policy")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::setSplitDNSPolicy(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("clearSplitDNSLocal"),
         {},
         op([](const Context &c, const Args &, QString *e) {
             return E::clearSplitDNSLocal(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("resetSplitDNS"), {}, op([](const Context &c, const Args &, QString *e) {
             return E::resetSplitDNS(c.socketPath, c.timeoutMs, e);
         })},
        {QStringLiteral("fetchSplitRules"),
         {text("kind")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::fetchSplitRules(c.socketPath, a[0], c.timeoutMs, e);
         })},
        {QStringLiteral("importSplitRules"),
         {text("kind"), text("content")},
         op([](const Context &c, const Args &a, QString *e) {
             return E::importSplitRules(c.socketPath, a[0], a[1], c.timeoutMs, e);
         })},
        {QStringLiteral("repairDiagnostics"),
         {},
         op([](const Context &c, const Args &, QString *e) {
             return E::repairDiagnostics(c.socketPath, c.timeoutMs, e);
         })},
    };
}

} // namespace

const QList<CtlOperations::Operation> &CtlOperations::all()
{
    static const QList<Operation> operations = buildOperations();
    return operations;
}

const CtlOperations::Operation *CtlOperations::find(const QString &name)
{
    for (const Operation &operation : all()) {
        if (operation.name == name)
            return &operation;
    }
    return nullptr;
}

QString CtlOperations::checkArguments(const Operation &operation, const QStringList &arguments)
{
    if (arguments.size() != operation.arguments.size())
        return QStringLiteral("%1 takes %2 argument(s), %3 given")
            .arg(operation.name)
            .arg(operation.arguments.size())
            .arg(arguments.size());
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const Argument &argument = operation.arguments.at(i);
        const QString &value = arguments.at(i);
        if (argument.kind == QLatin1String("bool") && value != QLatin1String("true") &&
            value != QLatin1String("false"))
            return QStringLiteral("%1 must be true or false, not \"%2\"").arg(argument.name, value);
        if (argument.kind == QLatin1String("number")) {
            bool ok = false;
            value.toLongLong(&ok);
            if (!ok)
                return QStringLiteral("%1 must be a whole number, not \"%2\"")
                    .arg(argument.name, value);
        }
        if (argument.kind == QLatin1String("mode") &&
            !QJsonDocument::fromJson(value.toUtf8()).isObject())
            return QStringLiteral("%1 must be a JSON object such as {\"transport\":\"auto\"}")
                .arg(argument.name);
    }
    return QString();
}

QString CtlOperations::helpText()
{
    QString text;
    for (const Operation &operation : all()) {
        text += QStringLiteral("  ") + operation.name;
        for (const Argument &argument : operation.arguments) {
            text += QStringLiteral(" <") + argument.name;
            if (argument.kind != QLatin1String("text"))
                text += QLatin1Char(':') + argument.kind;
            text += QLatin1Char('>');
        }
        text += QLatin1Char('\n');
    }
    return text;
}
