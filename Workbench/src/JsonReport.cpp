#include "JsonReport.h"

#include "Clock.h"
#include "ErrorKind.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

QString timeText(qint64 ms)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(ms);
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

QJsonObject errorObject(const ListedError &error)
{
    return {{QStringLiteral("key"), error.key},
            {QStringLiteral("type"), error.type},
            {QStringLiteral("kind"), errorKind(error.type)},
            {QStringLiteral("category"), error.category},
            {QStringLiteral("station"), error.stationId},
            {QStringLiteral("device"), error.deviceId},
            {QStringLiteral("name"), error.name},
            {QStringLiteral("origin"), error.origin},
            {QStringLiteral("raisedAt"), timeText(error.timeMs)}};
}

QJsonObject countsObject(const ErrorTally::Counts &counts)
{
    return {{QStringLiteral("raised"), counts.raised},
            {QStringLiteral("cleared"), counts.cleared},
            {QStringLiteral("listed"), counts.listed()}};
}

QJsonObject countsByKind(const ErrorTally &tally)
{
    QJsonObject kinds;
    for (auto kind = tally.counts().begin(); kind != tally.counts().end(); ++kind)
        kinds.insert(errorKind(kind.key()), countsObject(kind.value()));
    return kinds;
}

QJsonValue toJson(const std::optional<int> &percentage)
{
    return percentage ? QJsonValue(*percentage) : QJsonValue();
}

QJsonObject samplesObject(const SampleSummary &samples)
{
    QJsonObject object{{QStringLiteral("count"), samples.count}};
    if (samples.count > 0) {
        object.insert(QStringLiteral("lastCpu"), toJson(samples.lastCpu));
        object.insert(QStringLiteral("lastMemory"), toJson(samples.lastMemory));
    }
    return object;
}

} // namespace

JsonReport::JsonReport(QTextStream &out, const Clock &clock, QObject *parent)
    : RunReport(parent)
    , m_out(out)
    , m_clock(clock)
{ }

void JsonReport::write(const QString &event, QJsonObject object)
{
    object.insert(QStringLiteral("event"), event);
    object.insert(QStringLiteral("time"), timeText(m_clock.nowMs()));
    m_out << QJsonDocument(object).toJson(QJsonDocument::Compact) << Qt::endl;
}

void JsonReport::writePicture(const QString &file, bool isSaved)
{
    write(QStringLiteral("picture"),
          {{QStringLiteral("file"), file}, {QStringLiteral("saved"), isSaved}});
}

void JsonReport::writeConnectTimeout(qint64 timeoutMs)
{
    write(QStringLiteral("connectTimeout"), {{QStringLiteral("timeoutMs"), timeoutMs}});
}

void JsonReport::writeSummary()
{
    QJsonArray errors;
    const QList<ListedError> listed = listedErrors();
    for (const ListedError &error : listed)
        errors.append(errorObject(error));
    write(QStringLiteral("summary"), {{QStringLiteral("connected"), isConnected()},
                                      {QStringLiteral("errors"), errors},
                                      {QStringLiteral("total"), countsObject(tally().total())},
                                      {QStringLiteral("kinds"), countsByKind(tally())},
                                      {QStringLiteral("samples"), samplesObject(samples())}});
}

void JsonReport::writeError(ErrorChange change, const ListedError &error)
{
    const QString event = change == ErrorChange::Raised    ? QStringLiteral("raised")
                          : change == ErrorChange::Cleared ? QStringLiteral("cleared")
                                                           : QStringLiteral("changed");
    write(event, {{QStringLiteral("error"), errorObject(error)}});
}

void JsonReport::writeWaitInVain(const QString &key)
{
    write(QStringLiteral("waitedInVain"), {{QStringLiteral("key"), key}});
}

void JsonReport::writeLostNode(const QString &nodeId, const QString &reason)
{
    write(QStringLiteral("nodeLost"),
          {{QStringLiteral("node"), nodeId}, {QStringLiteral("reason"), reason}});
}

void JsonReport::writeFoundNode(const QString &nodeId)
{
    write(QStringLiteral("nodeBack"), {{QStringLiteral("node"), nodeId}});
}

void JsonReport::writeConnection(bool isOpen)
{
    write(QStringLiteral("connection"), {{QStringLiteral("connected"), isOpen}});
}

void JsonReport::writeFailedAttempt(const QString &reason, qint64 pauseMs)
{
    write(QStringLiteral("attemptFailed"),
          {{QStringLiteral("reason"), reason}, {QStringLiteral("pauseMs"), pauseMs}});
}

void JsonReport::writeRefusal(const QString &reason)
{
    write(QStringLiteral("refused"), {{QStringLiteral("reason"), reason}});
}

void JsonReport::writeStates(bool success)
{
    write(QStringLiteral("states"), {{QStringLiteral("success"), success}});
}

void JsonReport::writeCapacity(const QString &serverName, double percentage)
{
    write(QStringLiteral("capacity"),
          {{QStringLiteral("server"), serverName}, {QStringLiteral("percentage"), percentage}});
}

void JsonReport::writeSnooze(const SnoozeAnswer &answer)
{
    const QJsonValue accepted = answer.isLost() ? QJsonValue() : QJsonValue(answer.isAccepted());
    write(QStringLiteral("snooze"), {{QStringLiteral("node"), answer.nodeId},
                                     {QStringLiteral("until"), timeText(answer.endMs)},
                                     {QStringLiteral("accepted"), accepted},
                                     {QStringLiteral("resultCode"), answer.resultCode}});
}

void JsonReport::writeSnoozeEnd(const QString &nodeId, bool isStillDisconnected)
{
    write(QStringLiteral("snoozeEnd"), {{QStringLiteral("node"), nodeId},
                                        {QStringLiteral("disconnected"), isStillDisconnected}});
}

void JsonReport::writeCameraReconnection(const QStringList &cameraIds)
{
    write(QStringLiteral("reconnect"),
          {{QStringLiteral("cameras"), QJsonArray::fromStringList(cameraIds)}});
}

void JsonReport::writeStationReconnection(const QStringList &stationIds)
{
    write(QStringLiteral("reconnect"),
          {{QStringLiteral("stations"), QJsonArray::fromStringList(stationIds)}});
}

void JsonReport::writeSupport(const QString &stationId, bool isSupported)
{
    write(QStringLiteral("support"),
          {{QStringLiteral("station"), stationId}, {QStringLiteral("supported"), isSupported}});
}

void JsonReport::writeLogEntry(const QString &name, const QVariantList &parameters)
{
    write(QStringLiteral("log"),
          {{QStringLiteral("name"), name},
           {QStringLiteral("parameters"), QJsonArray::fromVariantList(parameters)}});
}
