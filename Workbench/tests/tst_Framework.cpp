#include "Framework.h"

#include "FakeMonitor.h"
#include "PrintedValue.h"
#include "ServerNames.h"
#include "SiteServer.h"
#include "TopologyPlugin.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString MonitorId = QStringLiteral("{monitor}");
const QString TopologyId = QStringLiteral("topology");

} // namespace

class tst_Framework : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void findsRegisteredPlugins();
    void forgetsPluginsThatAreGone();
    void lastRegistrationCounts();

    void commandsAreAnsweredFromTheEventLoop();
    void commandsAreAnsweredInTheirOrder();
    void everythingPassesUnchanged();
    void announcesACommandAndItsResult();
    void refusesCommandsWithoutASender();
    void dropsTheAnswerWhenTheSenderIsGone();
    void answersWhatIsOutstandingOnRequest();
    void commandsSentByAnAnswerAreAnswered();
    void serverMayAnswerLater();
    void lateAnswerAfterTheRequestIsIgnored();
    void lateAnswerAfterTheFrameworkIsIgnored();

    void connectsSignalsToPrivateInvokables();
    void refusesWrongConnections_data();
    void refusesWrongConnections();
    void neverSkipsPairWiring();
    void refusesForeignHandles();

private:
    bool send(const QString &command, const QVariant &data = {}, void *context = nullptr,
              const QString &target = {});

    bool m_answersLate = false;
    Framework::Answer m_lateAnswer;
    CallLog m_log;
    std::unique_ptr<FakeMonitor> m_monitor;
    std::unique_ptr<TopologyPlugin> m_topology;
    std::unique_ptr<Framework> m_framework;
};

void tst_Framework::init()
{
    m_log.take();
    m_answersLate = false;
    m_monitor = std::make_unique<FakeMonitor>(m_log);
    m_topology = std::make_unique<TopologyPlugin>();
    m_framework = std::make_unique<Framework>([this](const QString &command, const QVariant &data,
                                                     const QString &target,
                                                     const Framework::Answer &answer) {
        m_log.add(QStringLiteral("execute %1 %2 at '%3'").arg(command, printedValue(data), target));
        if (m_answersLate)
            m_lateAnswer = answer;
        else
            answer({QStringLiteral("code of ") + command, data});
    });
    m_framework->registerPlugin(MonitorId, m_monitor.get());
    m_framework->registerPlugin(TopologyId, m_topology.get());
}

bool tst_Framework::send(const QString &command, const QVariant &data, void *context,
                         const QString &target)
{
    return m_framework->SendCommand(m_framework->handle(), MonitorId, command, data, context, 0,
                                    target);
}

void tst_Framework::findsRegisteredPlugins()
{
    void *const handle = m_framework->handle();
    QCOMPARE(m_framework->GetPluginObject(handle, MonitorId), m_monitor.get());
    QCOMPARE(m_framework->GetPluginObject(handle, TopologyId), m_topology.get());
    QCOMPARE(m_framework->GetPluginObject(handle, QStringLiteral("monitor")), nullptr);
    QCOMPARE(m_framework->GetPluginObject(handle, QString()), nullptr);
}

void tst_Framework::forgetsPluginsThatAreGone()
{
    m_topology.reset();
    QCOMPARE(m_framework->GetPluginObject(m_framework->handle(), TopologyId), nullptr);
}

void tst_Framework::lastRegistrationCounts()
{
    QObject other;
    m_framework->registerPlugin(TopologyId, &other);
    QCOMPARE(m_framework->GetPluginObject(m_framework->handle(), TopologyId), &other);
}

void tst_Framework::commandsAreAnsweredFromTheEventLoop()
{
    QVERIFY(send(QStringLiteral("ask")));
    QCOMPARE(m_log.take(), QStringList());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("execute ask invalid at ''"),
                                        QStringLiteral("response ask invalid code of ask")}));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(), QStringList());
}

void tst_Framework::commandsAreAnsweredInTheirOrder()
{
    send(QStringLiteral("one"));
    send(QStringLiteral("two"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("execute one invalid at ''"),
                                        QStringLiteral("response one invalid code of one"),
                                        QStringLiteral("execute two invalid at ''"),
                                        QStringLiteral("response two invalid code of two")}));
}

void tst_Framework::everythingPassesUnchanged()
{
    int context = 0;
    send(QStringLiteral("ask"), QStringList{QStringLiteral("a/%1")}, &context,
         QStringLiteral("st/1"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral(R"(execute ask QStringList["a/%1"] at 'st/1')"),
                          QStringLiteral(R"(response ask QStringList["a/%1"] code of ask)")}));
    QCOMPARE(m_monitor->lastContext, &context);
}

void tst_Framework::announcesACommandAndItsResult()
{
    connect(m_framework.get(), &Framework::commandStarted, this,
            [this](const QString &command, const QVariant &, const QString &target) {
                m_log.add(QStringLiteral("started %1 at %2").arg(command, target));
            });
    connect(m_framework.get(), &Framework::commandExecuted, this,
            [this](const QString &command, const QVariant &, const QString &target,
                   const QString &code) {
                m_log.add(QStringLiteral("executed %1 at %2: %3").arg(command, target, code));
            });
    send(QStringLiteral("ask"), {}, nullptr, QStringLiteral("st"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("started ask at st"),
                                        QStringLiteral("execute ask invalid at 'st'"),
                                        QStringLiteral("executed ask at st: code of ask"),
                                        QStringLiteral("response ask invalid code of ask")}));
}

void tst_Framework::refusesCommandsWithoutASender()
{
    const auto sendAs = [this](const QString &senderId) {
        return m_framework->SendCommand(m_framework->handle(), senderId, QStringLiteral("ask"), {},
                                        nullptr, 0, {});
    };
    QVERIFY(!sendAs(QStringLiteral("nobody")));
    // The object of an id need not be able to take an answer.
    QVERIFY(!sendAs(TopologyId));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(), QStringList());
}

void tst_Framework::dropsTheAnswerWhenTheSenderIsGone()
{
    send(QStringLiteral("ask"));
    m_monitor.reset();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("execute ask invalid at ''")});
}

void tst_Framework::answersWhatIsOutstandingOnRequest()
{
    send(QStringLiteral("ask"));
    m_framework->answerCommands();
    QCOMPARE(m_log.take().size(), 2);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(), QStringList());
}

void tst_Framework::commandsSentByAnAnswerAreAnswered()
{
    const QSignalSpy rounds(m_framework.get(), &Framework::commandExecuted);
    connect(m_framework.get(), &Framework::commandExecuted, this, [this, left = 2]() mutable {
        if (left-- > 0)
            send(QStringLiteral("again"));
    });
    send(QStringLiteral("first"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(rounds.size(), 3);
}

void tst_Framework::serverMayAnswerLater()
{
    m_answersLate = true;
    send(QStringLiteral("ask"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("execute ask invalid at ''")});
    m_lateAnswer({QStringLiteral("late"), 3});
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("response ask 3 late")});
    m_lateAnswer({QStringLiteral("again"), 3});
    QCOMPARE(m_log.take(), QStringList());
}

void tst_Framework::lateAnswerAfterTheRequestIsIgnored()
{
    m_answersLate = true;
    send(QStringLiteral("ask"), 7);
    QCoreApplication::sendPostedEvents();
    m_log.take();
    m_framework->answerCommands();
    QCOMPARE(m_log.take(),
             QStringList{QStringLiteral("response ask 7 ") + ServerNames::FrameworkInternalError});
    m_lateAnswer({QStringLiteral("late"), 3});
    QCOMPARE(m_log.take(), QStringList());
}

void tst_Framework::lateAnswerAfterTheFrameworkIsIgnored()
{
    m_answersLate = true;
    send(QStringLiteral("ask"));
    QCoreApplication::sendPostedEvents();
    m_log.take();
    m_framework.reset();
    m_lateAnswer({QStringLiteral("late"), 3});
    QCOMPARE(m_log.take(), QStringList());
}

void tst_Framework::connectsSignalsToPrivateInvokables()
{
    QVERIFY(m_framework->ConnectPluginSignal(
        m_framework->handle(), TopologyId, "2nodeStatusChanged(int, const QString &, bool)",
        MonitorId, "1monitorNodeStatus(int, const QString &, bool)", 0));
    Q_EMIT m_topology->nodeStatusChanged(0, QStringLiteral("st/c"), true);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("monitorNodeStatus 0 st/c 1")});
}

void tst_Framework::refusesWrongConnections_data()
{
    QTest::addColumn<QString>("sourceId");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QString>("receiverId");
    QTest::addColumn<QByteArray>("slot");
    const QByteArray signal = "2stationRemoved(const QString &)";
    const QByteArray slot = "1monitorVolumeStatus(const QString &)";
    const QString nobody = QStringLiteral("nobody");
    QTest::newRow("unknown source") << nobody << signal << MonitorId << slot;
    QTest::newRow("unknown receiver") << TopologyId << signal << nobody << slot;
    QTest::newRow("unknown signal") << TopologyId << QByteArray("2gone(int)") << MonitorId << slot;
    QTest::newRow("unknown slot") << TopologyId << signal << MonitorId << QByteArray("1go(int)");
    QTest::newRow("signal without its mark") << TopologyId << signal.mid(1) << MonitorId << slot;
    QTest::newRow("arguments that do not fit")
        << TopologyId << signal << MonitorId
        << QByteArray("1monitorNodeStatus(int, const QString &, bool)");
}

void tst_Framework::refusesWrongConnections()
{
    QFETCH(QString, sourceId);
    QFETCH(QByteArray, signal);
    QFETCH(QString, receiverId);
    QFETCH(QByteArray, slot);
    if (sourceId == TopologyId && receiverId == MonitorId)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("connect")));
    QVERIFY(!m_framework->ConnectPluginSignal(m_framework->handle(), sourceId, signal.constData(),
                                              receiverId, slot.constData(), 0));
}

void tst_Framework::neverSkipsPairWiring()
{
    QVERIFY(!m_framework->ShouldSkipPairWiring(m_framework->handle()));
}

void tst_Framework::refusesForeignHandles()
{
    int other = 0;
    for (void *const handle : {static_cast<void *>(nullptr), static_cast<void *>(&other)}) {
        QVERIFY(!m_framework->SendCommand(handle, MonitorId, QStringLiteral("ask"), {}, nullptr, 0,
                                          {}));
        QVERIFY(!m_framework->ConnectPluginSignal(handle, TopologyId,
                                                  "2stationRemoved(const QString &)", MonitorId,
                                                  "1monitorVolumeStatus(const QString &)", 0));
        QCOMPARE(m_framework->GetPluginObject(handle, MonitorId), nullptr);
    }
}

QTEST_GUILESS_MAIN(tst_Framework)
#include "tst_Framework.moc"
