// Figures for the control layer next to their floors: record parsing next to reading the same
// JSON into a QJsonDocument, and one fetchStatus exchange over a real Unix socket next to the
// bare socket round trip of the same bytes. Wall-clock medians of many runs.
#include "BenchTable.h"
#include "ControlClient.h"
#include "ControlEndpoints.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <functional>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

const QByteArray kStatusBody =
    R"({"daemon_state":"running","daemon_version":"2.1.0","api_url":"https://api.example",
"auto_connect":"last","auto_connect_state":"idle","language":"de","language_source":"user","effective_language":"de-DE",
"catalog_refresh":"done","auth_state":"signed_in","tunnel_state":"connected","tunnel_kind":"wireguard",
"tunnel_reason":"user","last_error":"","mode":{"transport":"tovravpn","policy":"split","region":"CN","pac_port":8090,
"proxy_lan":true,"split_profile":{"default_route":"proxy","direct_regions":["CN"],"gfwlist":true}},
"connected_source":"tray","connected_target":"node","connected_since":"2026-11-21T05:00:00Z",
"selected_node":{"id":12,"region":"US","name":"Chicago"},"connected_node":{"id":12,"region":"US","name":"Chicago"},
"kill_switch":{"enabled":true,"mode":"auto","guard":"active"},"proxy_listeners":[{"name":"local-socks",
"scheme":"socks5","address":"127.0.0.1:1080"}],"pac_status":{"state":"serving","proxy_port":1080}})";

// Median nanoseconds of one call over a number of runs.
double medianNs(int runs, const std::function<void()> &work)
{
    std::vector<qint64> samples;
    samples.reserve(size_t(runs));
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        samples.push_back(timer.nsecsElapsed());
    }
    std::nth_element(samples.begin(), samples.begin() + runs / 2, samples.end());
    return double(samples[size_t(runs / 2)]);
}

QByteArray catalogue(int nodes, QByteArray *groupsOut)
{
    QJsonArray nodeArray;
    QJsonArray continents;
    for (int c = 0; c < 5; ++c) {
        QJsonArray countries;
        for (int k = 0; k < 40; ++k) {
            QJsonArray cities;
            for (int city = 0; city < 5; ++city) {
                QJsonArray ids;
                for (int n = 0; n < nodes / 1000; ++n) {
                    const int id = nodeArray.size();
                    ids.append(QString::number(id));
                    nodeArray.append(QJsonObject{
                        {QLatin1String("id"), id},
                        {QLatin1String("name"), QStringLiteral("City %1 #%2").arg(city).arg(n)},
                        {QLatin1String("tags"), QJsonArray{QStringLiteral("FREE")}},
                        {QLatin1String("region"), QStringLiteral("C%1").arg(k)},
                        {QLatin1String("type"), QStringLiteral("free")},
                        {QLatin1String("signalLevel"), 3},
                        {QLatin1String("pingMs"), 40 + n}});
                }
                cities.append(QJsonObject{
                    {QLatin1String("id"), QStringLiteral("%1-%2-%3").arg(c).arg(k).arg(city)},
                    {QLatin1String("level"), 3},
                    {QLatin1String("node_ids"), ids}});
            }
            countries.append(
                QJsonObject{{QLatin1String("id"), QStringLiteral("%1-%2").arg(c).arg(k)},
                            {QLatin1String("level"), 2},
                            {QLatin1String("subgroups"), cities}});
        }
        continents.append(QJsonObject{{QLatin1String("id"), c},
                                      {QLatin1String("level"), 1},
                                      {QLatin1String("subgroups"), countries}});
    }
    *groupsOut = QJsonDocument(QJsonObject{{QLatin1String("groups"), continents}})
                     .toJson(QJsonDocument::Compact);
    return QJsonDocument(QJsonObject{{QLatin1String("nodes"), nodeArray}})
        .toJson(QJsonDocument::Compact);
}

// A minimal daemon: accept, read the request head, write a fixed answer, close.
class MinimalPeer
{
public:
    MinimalPeer(const QString &path, const QByteArray &answer)
        : m_answer(answer)
    {
        m_listen = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray native = path.toLocal8Bit();
        std::copy(native.begin(), native.end(), address.sun_path);
        ::bind(m_listen, reinterpret_cast<sockaddr *>(&address), sizeof(address));
        ::listen(m_listen, 64);
        m_thread = std::thread([this] { serve(); });
    }
    ~MinimalPeer()
    {
        m_stop = true;
        ::shutdown(m_listen, SHUT_RDWR);
        ::close(m_listen);
        m_thread.join();
    }

private:
    void serve()
    {
        char buffer[4096];
        while (!m_stop) {
            const int client = ::accept(m_listen, nullptr, nullptr);
            if (client < 0)
                continue;
            QByteArray request;
            while (!request.contains("\r\n\r\n")) {
                const ssize_t n = ::read(client, buffer, sizeof(buffer));
                if (n <= 0)
                    break;
                request.append(buffer, n);
            }
            [[maybe_unused]] const ssize_t written =
                ::write(client, m_answer.constData(), size_t(m_answer.size()));
            ::close(client);
        }
    }

    QByteArray m_answer;
    int m_listen = -1;
    std::atomic_bool m_stop{false};
    std::thread m_thread;
};

// The same bytes with plain system calls: connect, write, read to the close.
void bareRoundTrip(const QString &path, const QByteArray &request)
{
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray native = path.toLocal8Bit();
    std::copy(native.begin(), native.end(), address.sun_path);
    ::connect(fd, reinterpret_cast<sockaddr *>(&address), sizeof(address));
    [[maybe_unused]] const ssize_t written =
        ::write(fd, request.constData(), size_t(request.size()));
    char buffer[8192];
    while (::read(fd, buffer, sizeof(buffer)) > 0) {
    }
    ::close(fd);
}

} // namespace

int main()
{
    BenchTable::header();
    BenchTable::section("control layer: parse and exchange; floor: JSON parse alone, bare socket");
    // The floor of a parser is reading the same JSON into a document, which any parser must do.
    const double statusNs = medianNs(20000, [] { RuntimeInfo::parse(kStatusBody, nullptr); });
    const double statusJsonNs = medianNs(20000, [] { QJsonDocument::fromJson(kStatusBody); });
    BenchTable::row("status answer parse (median)", statusNs / 1000.0, statusJsonNs / 1000.0, "us",
                    0);

    QByteArray groups;
    const QByteArray nodes = catalogue(10000, &groups);
    const double catalogueNs = medianNs(15, [&] {
        NodesInfo::parse(nodes, nullptr);
        NodeGroupsInfo::parse(groups, nullptr);
    });
    const double catalogueJsonNs = medianNs(15, [&] {
        QJsonDocument::fromJson(nodes);
        QJsonDocument::fromJson(groups);
    });
    BenchTable::row("10,000-node catalogue + groups parse", catalogueNs / 1e6,
                    catalogueJsonNs / 1e6, "ms", 0);

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bench.sock"));
    const QByteArray answer =
        "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nConnection: close\r\n"
        "Content-Length: " +
        QByteArray::number(kStatusBody.size()) + "\r\n\r\n" + kStatusBody;
    MinimalPeer peer(path, answer);
    const QByteArray request =
        ControlClient::buildRequest("GET", QStringLiteral("/v1/status"), QByteArray());
    for (int i = 0; i < 200; ++i)
        bareRoundTrip(path, request); // warm up
    const double bareNs = medianNs(3000, [&] { bareRoundTrip(path, request); });
    const double exchangeNs = medianNs(3000, [&] { ControlEndpoints::fetchStatus(path, 2000); });
    BenchTable::row("status exchange incl. parse (median)", exchangeNs / 1000.0, bareNs / 1000.0,
                    "us", 5.0);
    return 0;
}
