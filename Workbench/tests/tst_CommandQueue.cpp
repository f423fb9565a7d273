#include "CommandQueue.h"

#include "ServerNames.h"
#include "SnoozeStore.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

class tst_CommandQueue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void commandsAreAnsweredInTheirOrder();
    void answersComeBeforeTheEvents();
    void nothingHappensDuringTheCall();
    void abandonedCommandsAreNotCarriedOut();
    void queueMayGoWithItsCommands();
    void answerMayEndTheQueue();
    void answerMayAddACommand();
    void manyCommandsLeaveTurnsToOthers();
    void snoozesAtATimeAreStored();

private:
    void add(const QString &command, const QVariant &data = {}, const QString &target = {});
    void addSnooze(const QString &cameraId);

    VirtualClock m_clock;
    std::unique_ptr<SiteServer> m_server;
    std::unique_ptr<CommandQueue> m_queue;
    QStringList m_log;
};

void tst_CommandQueue::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_log.clear();
    m_server = std::make_unique<SiteServer>(testSite(), m_clock);
    m_queue = std::make_unique<CommandQueue>(*m_server);
    connect(m_server.get(), &SiteServer::eventRaised, this,
            [this](const QString &name) { m_log.append(name); });
}

void tst_CommandQueue::cleanup()
{
    m_queue.reset();
    m_server.reset();
}

void tst_CommandQueue::add(const QString &command, const QVariant &data, const QString &target)
{
    m_queue->add({command, data, target}, [this, command](const CommandResult &result) {
        m_log.append(command + u' ' + result.code);
    });
}

void tst_CommandQueue::addSnooze(const QString &cameraId)
{
    add(ServerNames::SetSnooze,
        QVariantMap{{ServerNames::KeyNodeId, cameraId},
                    {ServerNames::KeyType, ServerNames::CameraDisconnected},
                    {ServerNames::KeyTimestamp, m_clock.nowMs() / 1000 + 60}});
}

void tst_CommandQueue::commandsAreAnsweredInTheirOrder()
{
    add(ServerNames::GetSnoozeList);
    addSnooze(QStringLiteral("nowhere"));
    add(ServerNames::IsSupportSystemMonitor, {}, QStringLiteral("north"));
    add(QStringLiteral("dance"));
    QCoreApplication::processEvents();
    QCOMPARE(m_log, QStringList({QStringLiteral("getSnoozeList 0"),
                                 QStringLiteral("setSnooze UnknownNode"),
                                 QStringLiteral("isSupportSystemMonitor 0"),
                                 QStringLiteral("dance UnknownCommand")}));
}

void tst_CommandQueue::answersComeBeforeTheEvents()
{
    addSnooze(QStringLiteral("north/c1"));
    addSnooze(QStringLiteral("north/c2"));
    QTRY_COMPARE(m_log.size(), 4);
    QCOMPARE(m_log, QStringList({QStringLiteral("setSnooze 0"), QStringLiteral("setSnooze 0"),
                                 QStringLiteral("SnoozeError"), QStringLiteral("SnoozeError")}));
}

void tst_CommandQueue::nothingHappensDuringTheCall()
{
    addSnooze(QStringLiteral("north/c1"));
    QCOMPARE(m_log, QStringList());
    QVERIFY(m_server->snoozes().empty());
}

void tst_CommandQueue::abandonedCommandsAreNotCarriedOut()
{
    addSnooze(QStringLiteral("north/c1"));
    m_queue->abandon();
    QCOMPARE(m_log,
             QStringList{QStringLiteral("setSnooze ") + ServerNames::FrameworkInternalError});
    QCoreApplication::processEvents();
    QCOMPARE(m_log.size(), 1);
    QVERIFY(m_server->snoozes().empty());
    addSnooze(QStringLiteral("north/c1"));
    QCoreApplication::processEvents();
    QCOMPARE(m_server->snoozes().size(), std::size_t(1));
}

void tst_CommandQueue::queueMayGoWithItsCommands()
{
    addSnooze(QStringLiteral("north/c1"));
    m_queue.reset();
    QCoreApplication::processEvents();
    QCOMPARE(m_log, QStringList());
}

void tst_CommandQueue::answerMayEndTheQueue()
{
    m_queue->add({ServerNames::GetSnoozeList, {}, {}},
                 [this](const CommandResult &) { m_queue.reset(); });
    add(ServerNames::GetSnoozeList);
    QCoreApplication::processEvents();
    QCOMPARE(m_log, QStringList());
    QVERIFY(!m_queue);
}

void tst_CommandQueue::answerMayAddACommand()
{
    m_queue->add({ServerNames::GetSnoozeList, {}, {}},
                 [this](const CommandResult &) { add(QStringLiteral("dance")); });
    QTRY_COMPARE(m_log, QStringList{QStringLiteral("dance UnknownCommand")});
}

void tst_CommandQueue::manyCommandsLeaveTurnsToOthers()
{
    for (std::size_t i = 0; i <= CommandQueue::MaxAtATime; ++i)
        add(ServerNames::GetSnoozeList);
    QMetaObject::invokeMethod(
        this, [this] { m_log.append(QStringLiteral("other")); }, Qt::QueuedConnection);
    QTRY_COMPARE(m_log.size(), qsizetype(CommandQueue::MaxAtATime) + 2);
    QCOMPARE(m_log.indexOf(QStringLiteral("other")), qsizetype(CommandQueue::MaxAtATime));
}

void tst_CommandQueue::snoozesAtATimeAreStored()
{
    const QTemporaryDir directory;
    SnoozeStore store(directory.filePath(QStringLiteral("snoozes.sqlite")));
    SiteServer server(testSite(), m_clock, &store);
    m_queue = std::make_unique<CommandQueue>(server);
    addSnooze(QStringLiteral("north/c2"));
    addSnooze(QStringLiteral("nowhere"));
    addSnooze(QStringLiteral("north/c1"));
    QCoreApplication::processEvents();
    QCOMPARE(m_log,
             QStringList({QStringLiteral("setSnooze 0"), QStringLiteral("setSnooze UnknownNode"),
                          QStringLiteral("setSnooze 0")}));
    QCOMPARE(store.snoozes().size(), std::size_t(2));
    m_queue.reset();
}

QTEST_GUILESS_MAIN(tst_CommandQueue)
#include "tst_CommandQueue.moc"
