#include "SampleSite.h"

#include "FakeLog.h"
#include "FakePlugin.h"

#include <QDateTime>
#include <cmath>

namespace {

constexpr qint64 Second = 1000;
constexpr qint64 Minute = 60 * Second;
constexpr qint64 Hour = 60 * Minute;

QVariantMap station(const QString &id, const QString &name, const QString &parentID, bool connected)
{
    return {{QStringLiteral("stationID"), id},
            {QStringLiteral("name"), name},
            {QStringLiteral("parentID"), parentID},
            {QStringLiteral("connected"), connected}};
}

QVariantMap network(const QString &name, double percentage, double bandwidth)
{
    return {{QStringLiteral("networkInterface"), name},
            {QStringLiteral("networkPercentage"), percentage},
            {QStringLiteral("networkBandwidth"), bandwidth}};
}

QVariantMap snooze(const QString &nodeID, int type, const QString &name, qint64 timeLeft)
{
    return {{QStringLiteral("nodeID"), nodeID},
            {QStringLiteral("type"), type},
            {QStringLiteral("until"), SampleSite::now() + timeLeft},
            {QStringLiteral("name"), name}};
}

double wave(int step, double middle, double height, double length)
{
    return middle + height * std::sin(step / length) + height / 3 * std::sin(step * 1.7);
}

} // namespace

namespace SampleSite {

qint64 now()
{
    return QDateTime(QDate(2024, 5, 14), QTime(14, 7, 33)).toMSecsSinceEpoch();
}

QVariantList stations(bool well)
{
    return {
        station(QStringLiteral("lobby"), QStringLiteral("Lobby NVR"), QString(), true),
        station(QStringLiteral("quay"), QStringLiteral("Quay NVR"), QString(), true),
        station(QStringLiteral("quay/crane"), QStringLiteral("Crane 3"), QStringLiteral("quay"),
                well),
        station(QStringLiteral("parking"), QStringLiteral("Parking deck"), QString(), well),
        station(QStringLiteral("archive"), QStringLiteral("Archive"), QString(), true),
    };
}

void fillErrors(FakePlugin &plugin)
{
    const QString lobby = QStringLiteral("Lobby NVR");
    const QString quay = QStringLiteral("Quay NVR");
    const auto camera = [&plugin](const QString &stationID, const QString &name,
                                  const QString &cameraName, qint64 age) {
        plugin.addError(3, stationID, stationID + u'/' + cameraName, {name, cameraName},
                        now() - age);
    };
    plugin.addError(7, QStringLiteral("archive"), QStringLiteral("g2"),
                    {QStringLiteral("Archive"), QStringLiteral("Entrances")}, now() - 52 * Hour);
    plugin.addError(5, QStringLiteral("archive"), QString(), {QStringLiteral("Archive")},
                    now() - 27 * Hour);
    camera(QStringLiteral("lobby"), lobby, QStringLiteral("Revolving door"),
           3 * Hour + 20 * Minute);
    camera(QStringLiteral("quay"), quay, QStringLiteral("Berth 4 west"), 95 * Minute);
    camera(QStringLiteral("quay"), quay, QStringLiteral("Berth 4 east"), 94 * Minute);
    plugin.addError(4, QStringLiteral("quay/crane"), QString(), {QStringLiteral("Crane 3")},
                    now() - 41 * Minute);
    plugin.addError(4, QStringLiteral("parking"), QString(), {QStringLiteral("Parking deck")},
                    now() - 12 * Minute);
    camera(QStringLiteral("lobby"), lobby, QStringLiteral("Reception"), 6 * Minute);
    plugin.addError(0, QStringLiteral("quay"), QString(), {quay}, now() - 3 * Minute);
    plugin.addError(2, QStringLiteral("quay"), QStringLiteral("eth1"), {quay}, now() - 80 * Second);
    plugin.addError(1, QStringLiteral("lobby"), QString(), {lobby}, now() - 44 * Second);
    camera(QStringLiteral("quay"), quay, QStringLiteral("Gate B, licence plates"), 9 * Second);
    Q_EMIT plugin.isSupportSystemMonitor(QStringLiteral("lobby"), true);
    Q_EMIT plugin.isSupportSystemMonitor(QStringLiteral("quay"), true);
    Q_EMIT plugin.isSupportSystemMonitor(QStringLiteral("quay/crane"), true);
    Q_EMIT plugin.isSupportSystemMonitor(QStringLiteral("archive"), false);
}

void fillUsage(FakePlugin &plugin)
{
    plugin.setFocusStationResource(QStringLiteral("quay"));
    for (int step = 0; step < 48; ++step) {
        plugin.report(qRound(std::min(97.0, 60 + 0.8 * step + wave(step, 0, 6, 4))),
                      qRound(wave(step, 63, 3, 9)),
                      {network(QStringLiteral("eth0"), wave(step, 18, 6, 5), 1000),
                       network(QStringLiteral("eth1"), wave(step, 54, 9, 6), 1000)});
    }
}

void fillClient(FakePlugin &plugin)
{
    for (int step = 0; step < 240; ++step) {
        const bool failed = step > 100 && step < 130;
        Q_EMIT plugin.clientResourceChanged(failed ? -100 : qRound(wave(step, 22, 9, 15)),
                                            qRound(wave(step, 47, 2, 40)));
    }
}

QVariantList snoozes(int count)
{
    const QVariantList all{
        snooze(QStringLiteral("lobby/c7"), 3, QStringLiteral("Stairs to the archive"), 52 * Minute),
        snooze(QStringLiteral("quay/c12"), 3, QStringLiteral("Berth 9, mooring"), 9 * Minute),
        snooze(QStringLiteral("quay/annex"), 4, QStringLiteral("Annex recorder"), 26 * Hour),
        snooze(QStringLiteral("quay/crane/c1"), 3, QStringLiteral("Crane cabin"), 7 * Hour),
        snooze(QStringLiteral("parking/c3"), 3, QStringLiteral("Barrier, exit"), 0),
    };
    return all.first(count);
}

void endSnooze(FakePlugin &plugin)
{
    plugin.addError(3, QStringLiteral("parking"), QStringLiteral("parking/c3"),
                    {QStringLiteral("Parking deck"), QStringLiteral("Barrier, exit")}, now());
}

void fillLog(FakeLog &log)
{
    const QStringList cameras{QStringLiteral("Berth 9, mooring"), QStringLiteral("Crane cabin"),
                              QStringLiteral("Stairs to the archive"),
                              QStringLiteral("Barrier, exit")};
    for (int i = 0; i < 60; ++i) {
        const qint64 time = now() - 47 * Minute * (60 - i);
        const bool isLogin = i % 5 == 2;
        log.add(static_cast<double>(time),
                isLogin ? QStringLiteral("Operator logged in") : QStringLiteral("Error snoozed"),
                isLogin ? QStringList{QStringLiteral("control room %1").arg(i % 3 + 1)}
                        : QStringList{QStringLiteral("Camera disconnected"),
                                      QStringLiteral("Station: Quay NVR / Camera: ")
                                          + cameras.at(i % 4),
                                      QDateTime::fromMSecsSinceEpoch(time + Hour)
                                          .toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"))});
    }
}

} // namespace SampleSite
