#include "AddressReader.h"

#include "JsonObject.h"

#include <QCoreApplication>

namespace {

constexpr double LeastBandwidth = 0.001; // Mbit/s
constexpr double MaxBandwidth = 1e6;

class Reader
{
    Q_DECLARE_TR_FUNCTIONS(AddressReader)

public:
    static QUrl exporterUrl(JsonObject &object);
    static QUrl cameraAddress(JsonObject &camera, const QString &key);
    static void refuseSimulation(JsonObject &station, const QString &key);
};

bool isPlain(const QUrl &url)
{
    return url.port() > 0 && url.path().isEmpty() && !url.hasQuery();
}

// Files of sites are passed around, so they hold no passwords.
bool isUsable(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty() && url.port(1) != 0 && url.userInfo().isEmpty()
           && !url.hasFragment();
}

QUrl Reader::exporterUrl(JsonObject &object)
{
    const QString key = QStringLiteral("url");
    const QString text = object.text(key);
    QUrl url(text, QUrl::StrictMode);
    const bool isWeb =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!isWeb || !isUsable(url))
        object.fail(key, tr("an address like http://station:9100/metrics without a user"),
                    tr("\"%1\"").arg(text));
    return url;
}

QUrl Reader::cameraAddress(JsonObject &camera, const QString &key)
{
    const QString text = camera.text(key);
    QUrl url(text, QUrl::StrictMode);
    if (url.scheme() == QLatin1String("rtsp") && isUsable(url))
        return url;
    QUrl peer(QStringLiteral("tcp://") + text, QUrl::StrictMode);
    if (!isUsable(peer) || !isPlain(peer))
        camera.fail(key, tr("an address like rtsp://camera/path or camera:554 without a user"),
                    tr("\"%1\"").arg(text));
    return peer;
}

void Reader::refuseSimulation(JsonObject &station, const QString &key)
{
    if (station.has(QStringLiteral("resources")))
        station.fail(key, tr("a station without \"resources\""), tr("both"));
}

} // namespace

Exporter readExporter(JsonObject &station, const QString &key)
{
    Reader::refuseSimulation(station, key);
    JsonObject object = station.object(key);
    Exporter exporter{Reader::exporterUrl(object), {}};
    for (JsonObject &network : object.objects(QStringLiteral("networks"))) {
        exporter.bandwidths.insert(
            network.text(QStringLiteral("interface")),
            network.number(QStringLiteral("bandwidth"), LeastBandwidth, MaxBandwidth));
        network.expectNoMore();
    }
    object.expectNoMore();
    return exporter;
}

QUrl readCameraAddress(JsonObject &camera, const QString &key)
{
    return Reader::cameraAddress(camera, key);
}
