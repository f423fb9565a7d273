#include "ScenarioValues.h"

#include "JsonObject.h"
#include "Site.h"

#include <cmath>

namespace {

constexpr double MaxSeconds = 86'400;

} // namespace

qint64 ScenarioValues::milliseconds(JsonObject &object, const QString &key, double leastSeconds)
{
    return std::llround(object.number(key, leastSeconds, MaxSeconds) * 1000.0);
}

QString ScenarioValues::cameraId(JsonObject &event, const Site &site)
{
    const QString key = QStringLiteral("camera");
    QString id = event.text(key);
    if (!site.findCamera(id))
        fail(event, key, tr("the id of a camera of the site"), id);
    return id;
}

QString ScenarioValues::stationId(JsonObject &event, const Site &site)
{
    const QString key = QStringLiteral("station");
    QString id = event.text(key);
    if (!site.findStation(id))
        fail(event, key, tr("the id of a station of the site"), id);
    return id;
}

void ScenarioValues::fail(const JsonObject &event, const QString &key, const QString &expected,
                          const QString &text)
{
    event.fail(key, expected, tr("\"%1\"").arg(text));
}
