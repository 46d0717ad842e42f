#include "DemoRouter.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <QList>

void DemoRouter::add(const QByteArray &method, const QString &path, Handler handler)
{
    m_routes[path].insert(method, std::move(handler));
}

HttpResponse DemoRouter::route(const HttpRequest &request) const
{
    const auto path = m_routes.constFind(request.path());
    if (path == m_routes.cend())
        return HttpResponse::error(404, QStringLiteral("not found"));
    const auto handler = path->constFind(request.method());
    if (handler == path->cend()) {
        HttpResponse response = HttpResponse::error(405, QStringLiteral("method not allowed"));
        const QList<QByteArray> methods = path->keys();
        response.headers.append({"Allow", methods.join(", ")});
        return response;
    }
    QJsonObject body;
    if (!request.body().trimmed().isEmpty()) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(request.body(), &error);
        if (error.error != QJsonParseError::NoError)
            return HttpResponse::error(
                400, QStringLiteral("invalid JSON body: %1").arg(error.errorString()));
        if (!document.isObject())
            return HttpResponse::error(400, QStringLiteral("request body must be a JSON object"));
        body = document.object();
    }
    return handler.value()(request, body);
}
