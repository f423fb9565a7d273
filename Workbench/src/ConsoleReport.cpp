#include "ConsoleReport.h"

#include "Clock.h"

#include <QDateTime>
#include <QLocale>
#include <QTextStream>

namespace {

constexpr int WordWidth = 9;
constexpr int NumberWidth = 8;
const QString Comma = QStringLiteral(", ");

QString number(int value)
{
    return QString::number(value).rightJustified(NumberWidth);
}

QString percentageText(const std::optional<int> &percentage)
{
    return percentage ? ConsoleReport::tr("%1%").arg(*percentage) : ConsoleReport::tr("unknown");
}

// A server's names must not steer the terminal.
QString harmless(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return text;
}

} // namespace

ConsoleReport::ConsoleReport(QTextStream &out, const Clock &clock, QObject *parent)
    : RunReport(parent)
    , m_out(out)
    , m_clock(clock)
{ }

void ConsoleReport::writeLine(const QString &word, const QString &text)
{
    m_out << timeText(m_clock.nowMs()) << "  " << word.leftJustified(WordWidth) << ' '
          << harmless(text) << Qt::endl;
}

void ConsoleReport::writePicture(const QString &file, bool isSaved)
{
    writeLine(tr("picture"),
              isSaved ? tr("saved as %1").arg(file) : tr("%1 cannot be written").arg(file));
}

void ConsoleReport::writeConnectTimeout(qint64 timeoutMs)
{
    writeLine(tr("server"), tr("no connection within %1 s; the run ends")
                                .arg(QLocale().toString(static_cast<double>(timeoutMs) / 1000.0)));
}

void ConsoleReport::writeSummary()
{
    m_out << '\n' << tr("Summary") << '\n';
    m_out << tr("raised").rightJustified(NumberWidth) << tr("cleared").rightJustified(NumberWidth)
          << tr("listed").rightJustified(NumberWidth) << "  " << tr("error") << '\n';
    const auto writeCounts = [this](const ErrorTally::Counts &counts, const QString &name) {
        m_out << number(counts.raised) << number(counts.cleared) << number(counts.listed()) << "  "
              << harmless(name) << '\n';
    };
    for (const ErrorTally::Counts &counts : tally().counts())
        writeCounts(counts, counts.name);
    writeCounts(tally().total(), tr("all"));
    m_out << tr("Samples of this machine: %1").arg(samples().count);
    if (samples().count > 0)
        m_out << tr("; the last: CPU %1, memory %2")
                     .arg(percentageText(samples().lastCpu), percentageText(samples().lastMemory));
    m_out << Qt::endl;
}

void ConsoleReport::writeError(ErrorChange change, const ListedError &error)
{
    const QString word = change == ErrorChange::Raised    ? tr("raised")
                         : change == ErrorChange::Cleared ? tr("cleared")
                                                          : tr("changed");
    writeLine(word, QStringLiteral("%1: %2  [%3]").arg(error.name, error.origin, error.key));
}

void ConsoleReport::writeWaitInVain(const QString &key)
{
    writeLine(tr("waited"), tr("in vain until %1 is listed").arg(key));
}

void ConsoleReport::writeLostNode(const QString &nodeId, const QString &reason)
{
    writeLine(tr("watch"), tr("%1 does not answer: %2").arg(nodeId, reason));
}

void ConsoleReport::writeFoundNode(const QString &nodeId)
{
    writeLine(tr("watch"), tr("%1 answers").arg(nodeId));
}

void ConsoleReport::writeConnection(bool isOpen)
{
    writeLine(tr("server"), isOpen ? tr("connected") : tr("connection lost"));
}

void ConsoleReport::writeFailedAttempt(const QString &reason, qint64 pauseMs)
{
    writeLine(tr("server"),
              tr("%1; next try in %2 s")
                  .arg(reason, QLocale().toString(static_cast<double>(pauseMs) / 1000.0, 'f', 1)));
}

void ConsoleReport::writeRefusal(const QString &reason)
{
    writeLine(tr("server"), tr("refuses this client: %1").arg(reason));
}

void ConsoleReport::writeStates(bool success)
{
    writeLine(tr("states"), success ? tr("the states of all nodes were retrieved")
                                    : tr("retrieving the states of nodes failed"));
}

void ConsoleReport::writeCapacity(const QString &serverName, double percentage)
{
    writeLine(tr("capacity"),
              tr("%1 is at %2% of its capacity").arg(serverName, QLocale().toString(percentage)));
}

void ConsoleReport::writeSnooze(const SnoozeAnswer &answer)
{
    if (answer.isAccepted())
        writeLine(tr("snooze"),
                  tr("%1 is snoozed until %2").arg(answer.nodeId, timeText(answer.endMs)));
    else if (answer.isLost())
        writeLine(tr("snooze"),
                  tr("there is no answer for %1, which may be snoozed or not").arg(answer.nodeId));
    else
        writeLine(tr("snooze"), tr("%1 was refused: %2").arg(answer.nodeId, answer.resultCode));
}

void ConsoleReport::writeSnoozeEnd(const QString &nodeId, bool isStillDisconnected)
{
    writeLine(tr("expired"), isStillDisconnected
                                 ? tr("the snooze of %1, which is still disconnected").arg(nodeId)
                                 : tr("the snooze of %1").arg(nodeId));
}

void ConsoleReport::writeCameraReconnection(const QStringList &cameraIds)
{
    writeLine(tr("reconnect"), tr("cameras %1").arg(cameraIds.join(Comma)));
}

void ConsoleReport::writeStationReconnection(const QStringList &stationIds)
{
    writeLine(tr("reconnect"), tr("stations %1").arg(stationIds.join(Comma)));
}

void ConsoleReport::writeSupport(const QString &stationId, bool isSupported)
{
    writeLine(tr("support"), isSupported
                                 ? tr("%1 supports system monitoring").arg(stationId)
                                 : tr("%1 does not support system monitoring").arg(stationId));
}

void ConsoleReport::writeLogEntry(const QString &name, const QVariantList &parameters)
{
    writeLine(tr("logged"),
              QStringLiteral("%1: %2").arg(name, QVariant(parameters).toStringList().join(Comma)));
}

QString ConsoleReport::timeText(qint64 ms) const
{
    return QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss t"));
}
