#pragma once

#include "HttpRequest.h"
#include "HttpResponse.h"

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QString>

#include <functional>

// Dispatches a request by path and method: unknown paths 404, wrong methods 405, bodies that
// are not a JSON object 400. An empty body reads as the empty object.
class DemoRouter
{
public:
    using Handler = std::function<HttpResponse(const HttpRequest &, const QJsonObject &body)>;

    void add(const QByteArray &method, const QString &path, Handler handler);
    HttpResponse route(const HttpRequest &request) const;

private:
    QMap<QString, QMap<QByteArray, Handler>> m_routes;
};
