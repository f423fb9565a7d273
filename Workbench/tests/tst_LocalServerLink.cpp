#include "LocalServerLink.h"

#include "CallLog.h"
#include "ServerNames.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QTest>

#include <memory>

class tst_LocalServerLink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsClosed();
    void opensAndClosesOnce();
    void passesEverythingOnWhileOpen();
    void passesNothingOnWhileClosed();
    void executesCommandsWhileOpen();
    void commandsFailWhileClosed();
    void commandsUnderWayFailWithTheConnection();
    void tellsSinceWhen();

private:
    void changeEverything();
    CommandResult execute(const QString &command, const QVariant &data = {},
                          const QString &target = {});

    CallLog m_log;
    VirtualClock m_clock;
    std::unique_ptr<SiteServer> m_server;
    std::unique_ptr<LocalServerLink> m_link;
};

void tst_LocalServerLink::init()
{
    m_log.take();
    m_server = std::make_unique<SiteServer>(testSite(), m_clock);
    m_link = std::make_unique<LocalServerLink>(*m_server);
    const auto logs = [this](const char *line) {
        return [this, line] { m_log.add(QString::fromLatin1(line)); };
    };
    connect(m_link.get(), &ServerLink::opened, this, logs("opened"));
    connect(m_link.get(), &ServerLink::closed, this, logs("closed"));
    connect(m_link.get(), &ServerLink::nodeStatusChanged, this, logs("status"));
    connect(m_link.get(), &ServerLink::cameraRemoved, this, logs("camera removed"));
    connect(m_link.get(), &ServerLink::stationRemoved, this, logs("station removed"));
    connect(m_link.get(), &ServerLink::storageChanged, this, logs("storage"));
    connect(m_link.get(), &ServerLink::eventRaised, this, logs("event"));
}

void tst_LocalServerLink::cleanup()
{
    m_link.reset();
    m_server.reset();
}

void tst_LocalServerLink::changeEverything()
{
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    m_server->removeCamera(QStringLiteral("north/c1"));
    m_server->setVolumeConnected(QStringLiteral("north"), QStringLiteral("v1"), false);
    m_server->removeStation(QStringLiteral("north"));
    m_server->reportReachingLimit(QStringLiteral("Main"), 90);
    QCoreApplication::sendPostedEvents();
}

// The answer comes from the event loop, unless the link is closed.
CommandResult tst_LocalServerLink::execute(const QString &command, const QVariant &data,
                                           const QString &target)
{
    CommandResult answer;
    m_link->execute(command, data, target,
                    [&answer](const CommandResult &result) { answer = result; });
    QCoreApplication::sendPostedEvents();
    return answer;
}

void tst_LocalServerLink::startsClosed()
{
    QVERIFY(!m_link->isOpen());
    changeEverything();
    QCOMPARE(m_log.take(), QStringList());
}

void tst_LocalServerLink::opensAndClosesOnce()
{
    m_link->open();
    m_link->open();
    QVERIFY(m_link->isOpen());
    m_link->close();
    m_link->close();
    QVERIFY(!m_link->isOpen());
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("opened"), QStringLiteral("closed")}));
}

void tst_LocalServerLink::passesEverythingOnWhileOpen()
{
    m_link->open();
    m_log.take();
    changeEverything();
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("status"), QStringLiteral("camera removed"),
                          QStringLiteral("storage"), QStringLiteral("station removed"),
                          QStringLiteral("event")}));
    QCOMPARE(m_link->site().stationCount(), 1);
}

void tst_LocalServerLink::passesNothingOnWhileClosed()
{
    m_link->open();
    m_link->close();
    m_log.take();
    changeEverything();
    QCOMPARE(m_log.take(), QStringList());
}

void tst_LocalServerLink::executesCommandsWhileOpen()
{
    m_link->open();
    QCOMPARE(execute(ServerNames::GetSnoozeList).code, ServerNames::Success);
}

void tst_LocalServerLink::commandsFailWhileClosed()
{
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    const QVariant data = QVariantList{QStringLiteral("c1")};
    const CommandResult result =
        execute(ServerNames::ReconnectCameras, data, QStringLiteral("north"));
    QCOMPARE(result.code, ServerNames::FrameworkInternalError);
    QCOMPARE(result.data, data);
    QVERIFY(!m_server->site().findCamera(QStringLiteral("north/c1"))->connected);
}

void tst_LocalServerLink::commandsUnderWayFailWithTheConnection()
{
    m_link->open();
    m_server->setCameraConnected(QStringLiteral("north/c1"), false);
    QStringList codes;
    m_link->execute(ServerNames::ReconnectCameras, QVariantList{QStringLiteral("c1")},
                    QStringLiteral("north"),
                    [&codes](const CommandResult &result) { codes.append(result.code); });
    m_link->close();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(codes, QStringList{ServerNames::FrameworkInternalError});
    QVERIFY(!m_server->site().findCamera(QStringLiteral("north/c1"))->connected);
}

void tst_LocalServerLink::tellsSinceWhen()
{
    const QDateTime before = QDateTime::currentDateTime();
    m_link->open();
    const QDateTime since = m_link->since();
    QVERIFY(before <= since);
    QVERIFY(since <= QDateTime::currentDateTime());
    m_link->open();
    QCOMPARE(m_link->since(), since);
}

QTEST_GUILESS_MAIN(tst_LocalServerLink)
#include "tst_LocalServerLink.moc"
