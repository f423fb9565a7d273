// Sets snoozes, removes what is snoozed and lets time pass, without end, for a test that kills it.
// Says on the standard output which snoozes it found, then announces each change before it is asked
// of the server and confirms it after the server has answered.

#include "ServerNames.h"
#include "SiteServer.h"
#include "SnoozeStore.h"
#include "VirtualClock.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <unistd.h>

#include <optional>

namespace {

constexpr int CameraCount = 50;
constexpr qint64 Second = 1000;

QString cameraId(int number)
{
    return QStringLiteral("st/c%1").arg(number);
}

Site siteOfCameras()
{
    Station station;
    station.id = QStringLiteral("st");
    for (int i = 0; i < CameraCount; ++i)
        station.cameras.push_back({cameraId(i), QStringLiteral("Camera"), true});
    Site site;
    site.stations.push_back(station);
    return site;
}

// Unbuffered, so that what was said is known however the process ends.
void say(const QString &line)
{
    const QByteArray bytes = line.toLatin1() + '\n';
    if (write(STDOUT_FILENO, bytes.constData(), static_cast<size_t>(bytes.size())) < 0)
        _exit(1);
}

class Worker
{
public:
    Worker(const QString &fileName, qint64 startSeconds, quint32 seed)
        : m_random(seed)
        , m_store(fileName)
    {
        sayWhatIsFound();
        m_clock.leap(startSeconds * Second - m_clock.nowMs());
        sayPassOfTime(startSeconds);
        m_server.emplace(siteOfCameras(), m_clock, &m_store);
        say(QStringLiteral("done"));
    }

    [[noreturn]] void work()
    {
        for (;;) {
            const quint32 dice = m_random.bounded(10U);
            if (dice < 6)
                setSnooze();
            else if (dice < 8)
                removeCamera();
            else
                letTimePass();
        }
    }

private:
    void sayWhatIsFound() const
    {
        QStringList words{QStringLiteral("found")};
        for (const Snooze &snooze : m_store.snoozes())
            words << snooze.nodeId << QString::number(snooze.endSeconds);
        say(words.join(u' '));
    }

    static void sayPassOfTime(qint64 untilSeconds)
    {
        say(QStringLiteral("pass %1").arg(untilSeconds));
    }

    QString anyCamera() { return cameraId(static_cast<int>(m_random.bounded(CameraCount))); }

    void setSnooze()
    {
        const QString id = anyCamera();
        const qint64 end = m_clock.nowMs() / Second + m_random.bounded(1, 60);
        if (!m_server->site().findCamera(id))
            return;
        say(QStringLiteral("set %1 %2").arg(id).arg(end));
        const QVariantMap request{{ServerNames::KeyNodeId, id},
                                  {ServerNames::KeyType, ServerNames::CameraDisconnected},
                                  {ServerNames::KeyTimestamp, end}};
        confirm(m_server->execute(ServerNames::SetSnooze, request, {}).code);
    }

    void removeCamera()
    {
        const QString id = anyCamera();
        say(QStringLiteral("remove %1").arg(id));
        m_server->removeCamera(id);
        confirm(ServerNames::Success);
        if (!m_server->site().findCamera(cameraId(0)))
            m_server->reset(siteOfCameras());
    }

    void letTimePass()
    {
        const qint64 seconds = m_random.bounded(1, 6);
        sayPassOfTime(m_clock.nowMs() / Second + seconds);
        m_clock.advance(seconds * Second);
        confirm(ServerNames::Success);
    }

    static void confirm(const QString &code)
    {
        say(code == ServerNames::Success ? QStringLiteral("done") : QStringLiteral("failed"));
    }

    QRandomGenerator m_random;
    VirtualClock m_clock;
    SnoozeStore m_store;
    std::optional<SiteServer> m_server;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Worker(arguments.at(1), arguments.at(2).toLongLong(), arguments.at(3).toUInt()).work();
}
