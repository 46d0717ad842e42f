#pragma once

#include "AccountStore.h"
#include "CatalogStore.h"
#include "ConfigStore.h"
#include "DemoOptions.h"
#include "DemoRouter.h"
#include "KillSwitchStore.h"
#include "LanguageStore.h"
#include "RequestLog.h"
#include "RoutingStore.h"
#include "SplitStore.h"
#include "TunnelStore.h"
#include "UpdateStore.h"

#include <QJsonObject>
#include <QObject>

// The simulated daemon: every area's state, and the endpoints that read and change it.
class DemoService : public QObject
{
    Q_OBJECT

public:
    static constexpr const char *DaemonVersion = "2.8.0-demo";

    DemoService(const DemoOptions &options, const QString &rootDir, QObject *parent = nullptr);

    HttpResponse handle(const HttpRequest &request) const { return m_router.route(request); }
    RequestLog &log() { return m_log; }

private:
    void addStatusRoutes();
    void addCatalogRoutes();
    void addTunnelRoutes();
    void addAccountRoutes();
    void addConfigRoutes();
    void addUpdateRoutes();
    void addKillSwitchRoutes();
    void addRoutingRoutes();
    void addSplitRoutes();
    void addRepairRoutes();

    QJsonObject statusJson() const;
    HttpResponse status() const { return HttpResponse::json(statusJson()); }
    HttpResponse nodes() const;
    HttpResponse connectTo(const QJsonObject &body);
    QString tunnelKind() const;

    const DemoOptions &m_options;
    DemoRouter m_router;
    ConfigStore m_config;
    RequestLog m_log;
    CatalogStore m_catalog;
    TunnelStore m_tunnel;
    AccountStore m_account;
    KillSwitchStore m_killSwitch;
    LanguageStore m_language;
    RoutingStore m_routing;
    SplitStore m_split;
    UpdateStore m_update;
};
