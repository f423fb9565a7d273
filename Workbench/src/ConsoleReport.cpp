#include "ConsoleReport.h"

#include "Clock.h"
#include "Framework.h"
#include "OperationalLogPlugin.h"
#include "PluginSurface.h"
#include "ServerLink.h"
#include "ServerNames.h"
#include "TopologyPlugin.h"
#include "Workbench.h"

#include <QDateTime>
#include <QLocale>
#include <QTextStream>

namespace {

constexpr int WordWidth = 9;
constexpr int NumberWidth = 8;

QString number(int value)
{
    return QString::number(value).rightJustified(NumberWidth);
}

// A failed sample is negative.
QString percentageText(int percentage)
{
    return percentage < 0 ? ConsoleReport::tr("unknown") : ConsoleReport::tr("%1%").arg(percentage);
}

QString nodeIds(const QVariant &ownParts, const QString &parentId)
{
    QStringList ids;
    const QStringList parts = ownParts.toStringList();
    for (const QString &part : parts)
        ids.append(childNodeId(parentId, part));
    return ids.join(QStringLiteral(", "));
}

} // namespace

ConsoleReport::ConsoleReport(QTextStream &out, const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_out(out)
    , m_clock(clock)
{ }

void ConsoleReport::follow(Workbench &workbench)
{
    followErrors(workbench);
    followServer(workbench);
    followUser(workbench);
}

void ConsoleReport::writeLine(const QString &word, const QString &text)
{
    m_out << timeText(m_clock.nowMs()) << "  " << word.leftJustified(WordWidth) << ' ' << text
          << Qt::endl;
}

void ConsoleReport::writeSummary()
{
    m_out << '\n' << tr("Summary") << '\n';
    m_out << tr("raised").rightJustified(NumberWidth) << tr("cleared").rightJustified(NumberWidth)
          << tr("listed").rightJustified(NumberWidth) << "  " << tr("error") << '\n';
    const auto writeCounts = [this](const ErrorTally::Counts &counts, const QString &name) {
        m_out << number(counts.raised) << number(counts.cleared) << number(counts.listed()) << "  "
              << name << '\n';
    };
    for (const ErrorTally::Counts &counts : m_tally.counts())
        writeCounts(counts, counts.name);
    writeCounts(m_tally.total(), tr("all"));
    m_out << tr("Samples of this machine: %1").arg(m_sampleCount);
    if (m_sampleCount > 0)
        m_out << tr("; the last: CPU %1, memory %2")
                     .arg(percentageText(m_lastCpu), percentageText(m_lastMemory));
    m_out << Qt::endl;
}

void ConsoleReport::followErrors(const Workbench &workbench)
{
    const auto line = [this](const QString &word, const ListedError &error) {
        writeLine(word, QStringLiteral("%1: %2  [%3]").arg(error.name, error.origin, error.key));
    };
    const ErrorListWatch &watch = workbench.errorWatch();
    connect(&watch, &ErrorListWatch::raised, this, [this, line](const ListedError &error) {
        m_tally.raised(error);
        line(tr("raised"), error);
    });
    connect(&watch, &ErrorListWatch::cleared, this, [this, line](const ListedError &error) {
        m_tally.cleared(error);
        line(tr("cleared"), error);
    });
    connect(&watch, &ErrorListWatch::changed, this,
            [line](const ListedError &error) { line(tr("changed"), error); });
}

void ConsoleReport::followServer(Workbench &workbench)
{
    const ServerLink &link = workbench.link();
    connect(&link, &ServerLink::opened, this, [this] { writeLine(tr("server"), tr("connected")); });
    connect(&link, &ServerLink::closed, this,
            [this] { writeLine(tr("server"), tr("connection lost")); });
    connect(&link, &ServerLink::attemptFailed, this, [this](const QString &reason, qint64 pauseMs) {
        writeLine(
            tr("server"),
            tr("%1; next try in %2 s")
                .arg(reason, QLocale().toString(static_cast<double>(pauseMs) / 1000.0, 'f', 1)));
    });
    connect(&link, &ServerLink::refused, this, [this](const QString &reason) {
        writeLine(tr("server"), tr("refuses this client: %1").arg(reason));
    });
    connect(&workbench, &Workbench::nodeLost, this,
            [this](const QString &nodeId, const QString &reason) {
                writeLine(tr("watch"), tr("%1 does not answer: %2").arg(nodeId, reason));
            });
    connect(&workbench, &Workbench::nodeBack, this, [this](const QString &nodeId) {
        writeLine(tr("watch"), tr("%1 answers").arg(nodeId));
    });
    connect(&workbench, &Workbench::eventArrived, this, &ConsoleReport::writeEvent);
    connect(&workbench.topology(), &TopologyPlugin::camStatusRetrievedChanged, this,
            [this](bool success) {
                writeLine(tr("states"), success ? tr("the states of all nodes were retrieved")
                                                : tr("retrieving the states of nodes failed"));
            });
    connect(
        &workbench.surface(), &PluginSurface::reachingLimit, this,
        [this](const QString &serverName, double percentage) {
            writeLine(
                tr("capacity"),
                tr("%1 is at %2% of its capacity").arg(serverName, QLocale().toString(percentage)));
        });
    connect(&workbench.surface(), &PluginSurface::clientResourceChanged, this,
            [this](int cpu, int memory) {
                ++m_sampleCount;
                m_lastCpu = cpu;
                m_lastMemory = memory;
            });
}

void ConsoleReport::followUser(Workbench &workbench)
{
    connect(&workbench.framework(), &Framework::commandStarted, this,
            &ConsoleReport::writeReconnection);
    connect(&workbench.framework(), &Framework::commandExecuted, this,
            [this](const QString &command, const QVariant &data, const QString &,
                   const QString &resultCode) {
                if (command == ServerNames::SetSnooze)
                    writeSnooze(data.toMap(), resultCode);
            });
    connect(&workbench.surface(), &PluginSurface::supportAnswered, this,
            [this](const QString &stationId, bool isSupported) {
                writeLine(tr("support"),
                          isSupported ? tr("%1 supports system monitoring").arg(stationId)
                                      : tr("%1 does not support system monitoring").arg(stationId));
            });
    connect(&workbench.logPlugin(), &OperationalLogPlugin::entryAdded, this,
            [this](const QString &name, const QVariantList &parameters) {
                const QStringList texts = QVariant(parameters).toStringList();
                writeLine(tr("logged"),
                          QStringLiteral("%1: %2").arg(name, texts.join(QStringLiteral(", "))));
            });
}

void ConsoleReport::writeReconnection(const QString &command, const QVariant &data,
                                      const QString &target)
{
    if (command == ServerNames::ReconnectCameras)
        writeLine(tr("reconnect"), tr("cameras %1").arg(nodeIds(data, target)));
    else if (command == ServerNames::ReconnectSubstations)
        writeLine(tr("reconnect"), tr("stations %1").arg(nodeIds(data, target)));
}

void ConsoleReport::writeSnooze(const QVariantMap &request, const QString &resultCode)
{
    const QString nodeId = request.value(ServerNames::KeyNodeId).toString();
    const qint64 endMs = request.value(ServerNames::KeyTimestamp).toLongLong() * 1000;
    if (resultCode == ServerNames::Success)
        writeLine(tr("snooze"), tr("%1 is snoozed until %2").arg(nodeId, timeText(endMs)));
    else
        writeLine(tr("snooze"), tr("%1 was refused: %2").arg(nodeId, resultCode));
}

void ConsoleReport::writeEvent(const QString &name, const QVariant &data)
{
    if (name == ServerNames::DeviceStillError)
        writeLine(tr("expired"), tr("the snooze of %1, which is still disconnected")
                                     .arg(data.toMap().value(ServerNames::KeyNodeId).toString()));
    else if (name == ServerNames::RemoveSnooze)
        writeLine(tr("expired"), tr("the snooze of %1").arg(data.toString()));
}

QString ConsoleReport::timeText(qint64 ms) const
{
    return QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss t"));
}
