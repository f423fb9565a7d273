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
    static void refuseSimulation(JsonObject &station, const QString &key);
};

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
    const QUrl url(text, QUrl::StrictMode);
    const bool isWeb =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!isWeb || !isUsable(url))
        object.fail(key, tr("an address like http://station:9100/metrics without a user"),
                    tr("\"%1\"").arg(text));
    return url;
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
