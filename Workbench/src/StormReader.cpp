#include "StormReader.h"

#include "JsonObject.h"
#include "ScenarioValues.h"
#include "Site.h"

#include <QCoreApplication>
#include <QMap>

#include <cmath>

namespace {

constexpr double LeastRate = 0.01; // changes a second
constexpr double MaxRate = 100'000;
constexpr double LeastFlapSeconds = 0.1;

const QString CamerasKey = QStringLiteral("cameras");
const QString StationKey = QStringLiteral("station");
const QString SecondsKey = QStringLiteral("seconds");
const QString RateKey = QStringLiteral("rate");

class Reader
{
    Q_DECLARE_TR_FUNCTIONS(StormReader)

public:
    static StormChange change(JsonObject &event);
    static QStringList cameras(JsonObject &event, const Site &site, QRandomGenerator &chance);
    static void readFlapping(JsonObject &event, int most, Storm &storm);
    static void readPace(JsonObject &event, int most, Storm &storm);
    static void expectAtMost(int most, double changes, JsonObject &event, const QString &key);
};

StormChange Reader::change(JsonObject &event)
{
    static const QMap<QString, StormChange> changes{
        {QStringLiteral("down"), StormChange::Down},
        {QStringLiteral("up"), StormChange::Up},
        {QStringLiteral("flap"), StormChange::Flap},
    };
    const QString key = QStringLiteral("change");
    const QString change = event.text(key);
    if (!changes.contains(change)) {
        const QStringList names(changes.keyBegin(), changes.keyEnd());
        ScenarioValues::fail(event, key, tr("one of %1").arg(names.join(QStringLiteral(", "))),
                             change);
    }
    return changes.value(change);
}

QStringList Reader::cameras(JsonObject &event, const Site &site, QRandomGenerator &chance)
{
    QStringList all;
    const auto add = [&all](const Station &station) {
        for (const Camera &camera : station.cameras)
            all.append(camera.id);
    };
    if (event.has(StationKey))
        site.findStation(ScenarioValues::stationId(event, site))->forEachStation(add);
    else
        site.forEachStation(add);
    if (all.isEmpty())
        event.fail(StationKey, tr("a station with cameras"), tr("one without"));
    const int most = static_cast<int>(all.size());
    return chooseCameras(all, event.has(CamerasKey) ? event.wholeNumber(CamerasKey, 1, most) : most,
                         chance);
}

void Reader::readFlapping(JsonObject &event, int most, Storm &storm)
{
    const double rate = event.number(RateKey, LeastRate, MaxRate);
    storm.durationMs = ScenarioValues::milliseconds(event, SecondsKey, LeastFlapSeconds);
    const double changes = std::ceil(static_cast<double>(storm.durationMs) / 1000.0 * rate);
    expectAtMost(most, changes, event, RateKey);
    storm.changeCount = static_cast<int>(changes);
}

// Cameras that change once each need no more than one of the two figures.
void Reader::readPace(JsonObject &event, int most, Storm &storm)
{
    storm.changeCount = static_cast<int>(storm.cameraIds.size());
    expectAtMost(most, storm.changeCount, event, CamerasKey);
    if (event.has(RateKey)) {
        const double rate = event.number(RateKey, LeastRate, MaxRate);
        if (event.has(SecondsKey))
            event.fail(SecondsKey, tr("nothing beside \"rate\""), tr("a duration"));
        storm.durationMs = std::llround(storm.changeCount / rate * 1000.0);
    } else if (event.has(SecondsKey)) {
        storm.durationMs = ScenarioValues::milliseconds(event, SecondsKey);
    }
}

void Reader::expectAtMost(int most, double changes, JsonObject &event, const QString &key)
{
    if (changes > most)
        event.fail(key, tr("at most %1 changes in all").arg(most),
                   QString::number(changes, 'f', 0));
}

} // namespace

Storm readStorm(JsonObject &event, const Site &site, QRandomGenerator &chance, int most)
{
    Storm storm;
    storm.change = Reader::change(event);
    storm.cameraIds = Reader::cameras(event, site, chance);
    if (storm.change == StormChange::Flap)
        Reader::readFlapping(event, most, storm);
    else
        Reader::readPace(event, most, storm);
    return storm;
}
