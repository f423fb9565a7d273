#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Reconnecting what is listed as disconnected, and asking for monitoring support.
class tst_Reconnection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void camerasGoOutByStation_data();
    void camerasGoOutByStation();
    void stationsGoOutByParent_data();
    void stationsGoOutByParent();
    void listTypesDiffer();
    void otherErrorsAreLeftOut();
    void emptyListSendsNothing();
    void refusalIsOfNoAccount();
    void listedErrorsStayListed();
    void answersAreNotHandled();
    void supportIsAskedOfTheStation();
    void eachSupportQuestionHasItsOwnContext();
    void contextOfARefusedQuestionIsFreedWithItsAnswer();
};

namespace {

void lose(TestHost &host, int nodeType, const QStringList &ids)
{
    for (const QString &id : ids)
        Q_EMIT host.topology.nodeStatusChanged(nodeType, id, false);
}

} // namespace

void tst_Reconnection::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Reconnection::camerasGoOutByStation_data()
{
    QTest::addColumn<QStringList>("cameras");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("two stations") << QStringList{u"S1/c1"_s, u"S1/c2"_s, u"S2/c9"_s}
                                  << QStringList{
                                         u"send reconnectCameras [\"c1\", \"c2\"] to \"S1\""_s,
                                         u"send reconnectCameras [\"c9\"] to \"S2\""_s};
    QTest::newRow("in the order of the stations, then of the errors")
        << QStringList{u"b/2"_s, u"a/9"_s, u"b/1"_s, u"B/1"_s, u"a/10"_s}
        << QStringList{u"send reconnectCameras [\"1\"] to \"B\""_s,
                       u"send reconnectCameras [\"9\", \"10\"] to \"a\""_s,
                       u"send reconnectCameras [\"2\", \"1\"] to \"b\""_s};
    QTest::newRow("no slash") << QStringList{u"x"_s, u"y"_s}
                              << QStringList{u"send reconnectCameras [\"x\", \"y\"] to \"\""_s};
    QTest::newRow("slash in front")
        << QStringList{u"/x"_s, u"x"_s}
        << QStringList{u"send reconnectCameras [\"x\", \"x\"] to \"\""_s};
    QTest::newRow("slash at the end")
        << QStringList{u"st1/"_s} << QStringList{u"send reconnectCameras [\"\"] to \"st1\""_s};
    QTest::newRow("station with slashes")
        << QStringList{u"a/b/c"_s, u"a/b"_s, u"a/b/d"_s}
        << QStringList{u"send reconnectCameras [\"b\"] to \"a\""_s,
                       u"send reconnectCameras [\"c\", \"d\"] to \"a/b\""_s};
    QTest::newRow("nothing") << QStringList{QString()}
                             << QStringList{u"send reconnectCameras [\"\"] to \"\""_s};
    QTest::newRow("other script") << QStringList{u"駅/カメラ"_s}
                                  << QStringList{u"send reconnectCameras [\"カメラ\"] to \"駅\""_s};
}

void tst_Reconnection::camerasGoOutByStation()
{
    QFETCH(const QStringList, cameras);
    QFETCH(const QStringList, lines);
    TestHost host;
    lose(host, 0, cameras);
    host.invoke("reconnectDisconnectCameras");
    QCOMPARE(host.log.take(), lines);
}

void tst_Reconnection::stationsGoOutByParent_data()
{
    QTest::addColumn<QStringList>("stations");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("two below one, one at the top")
        << QStringList{u"A/B/C"_s, u"A/B/D"_s, u"X"_s}
        << QStringList{u"send reconnectSubstations QStringList[\"X\"] to \"\""_s,
                       u"send reconnectSubstations QStringList[\"C\", \"D\"] to \"A/B\""_s};
    QTest::newRow("in the order of the parents, then of the errors")
        << QStringList{u"b/2"_s, u"a/9"_s, u"b/1"_s, u"B/1"_s}
        << QStringList{u"send reconnectSubstations QStringList[\"1\"] to \"B\""_s,
                       u"send reconnectSubstations QStringList[\"9\"] to \"a\""_s,
                       u"send reconnectSubstations QStringList[\"2\", \"1\"] to \"b\""_s};
    QTest::newRow("empty parts count")
        << QStringList{u"a//b"_s, u"/c"_s, u"d/"_s}
        << QStringList{u"send reconnectSubstations QStringList[\"c\"] to \"\""_s,
                       u"send reconnectSubstations QStringList[\"b\"] to \"a/\""_s,
                       u"send reconnectSubstations QStringList[\"\"] to \"d\""_s};
    QTest::newRow("nothing") << QStringList{
        QString()} << QStringList{u"send reconnectSubstations QStringList[\"\"] to \"\""_s};
    QTest::newRow("duplicates are kept")
        << QStringList{u"X"_s, u"/X"_s}
        << QStringList{u"send reconnectSubstations QStringList[\"X\", \"X\"] to \"\""_s};
}

void tst_Reconnection::stationsGoOutByParent()
{
    QFETCH(const QStringList, stations);
    QFETCH(const QStringList, lines);
    TestHost host;
    lose(host, 1, stations);
    host.invoke("reconnectDisconnectSubstations");
    QCOMPARE(host.log.take(), lines);
}

void tst_Reconnection::listTypesDiffer()
{
    TestHost host;
    lose(host, 1, {u"A/B"_s});
    lose(host, 0, {u"C/1"_s});
    host.invoke("reconnectDisconnectSubstations");
    host.invoke("reconnectDisconnectCameras");
    QCOMPARE(host.framework.commands()[0].data.metaType(), QMetaType::fromType<QStringList>());
    QCOMPARE(host.framework.commands()[1].data.metaType(), QMetaType::fromType<QVariantList>());
}

void tst_Reconnection::otherErrorsAreLeftOut()
{
    TestHost host;
    host.invoke("monitorCPUUsage", u"A/B"_s, 100);
    host.invoke("monitorMemoryUsage", u"A/B"_s, 100);
    host.invoke("monitorNetworkUsage", u"A/B"_s, 100, u"A/B/1"_s);
    host.invoke("monitorVolumeStatus", u"A/B"_s);
    host.invoke("monitorInsufficientRecordingDays", u"A/B"_s, u"Vault"_s, u"g1"_s);
    host.invoke("reconnectDisconnectSubstations");
    host.invoke("reconnectDisconnectCameras");
    QCOMPARE(host.log.take(), QStringList());

    lose(host, 0, {u"C/1"_s});
    host.invoke("reconnectDisconnectSubstations");
    QCOMPARE(host.log.take(), QStringList());
    lose(host, 1, {u"D"_s});
    host.invoke("reconnectDisconnectCameras");
    QCOMPARE(host.log.take(), QStringList{u"send reconnectCameras [\"1\"] to \"C\""_s});
}

void tst_Reconnection::emptyListSendsNothing()
{
    TestHost host;
    host.invoke("reconnectDisconnectSubstations");
    host.invoke("reconnectDisconnectCameras");
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Reconnection::refusalIsOfNoAccount()
{
    TestHost host;
    host.framework.acceptsCommands = false;
    lose(host, 1, {u"A/1"_s, u"B/1"_s});
    lose(host, 0, {u"C/1"_s, u"D/1"_s});
    host.invoke("reconnectDisconnectSubstations");
    host.invoke("reconnectDisconnectCameras");
    QCOMPARE(host.log.take().size(), 4);
}

void tst_Reconnection::listedErrorsStayListed()
{
    TestHost host;
    lose(host, 1, {u"A"_s});
    lose(host, 0, {u"B/1"_s});
    const QStringList rows = host.errorRows();
    host.invoke("reconnectDisconnectSubstations");
    host.invoke("reconnectDisconnectCameras");
    QCOMPARE(host.errorRows(), rows);
}

void tst_Reconnection::answersAreNotHandled()
{
    TestHost host;
    lose(host, 0, {u"B/1"_s});
    host.respond(u"reconnectCameras"_s, QVariantList{u"1"_s});
    host.respond(u"reconnectSubstations"_s, QStringList{u"1"_s});
    QCOMPARE(host.log.take(), QStringList());
    QCOMPARE(host.errorKeys(), QStringList({u"3_B/1"_s}));
}

void tst_Reconnection::supportIsAskedOfTheStation()
{
    TestHost host;
    QVERIFY(host.ask<bool>("checkSupportSystemMonitor", u"A/駅"_s));
    QCOMPARE(host.log.take(), QStringList{u"send isSupportSystemMonitor invalid to \"A/駅\""_s});

    const SentCommand command = host.framework.commands().first();
    QCOMPARE(command.handle, host.framework.handle());
    QCOMPARE(command.senderID, PluginID::SystemMonitor);
    QCOMPARE(command.flag, 0);
    QCOMPARE(*static_cast<QString *>(command.context), u"A/駅"_s);
    host.respond(command.command, {}, u"0"_s, command.context);
    QCOMPARE(host.log.take(), QStringList{u"isSupportSystemMonitor(\"A/駅\", true)"_s});
}

void tst_Reconnection::eachSupportQuestionHasItsOwnContext()
{
    TestHost host;
    for (const QString &id : {u"A"_s, u"B"_s, u"A"_s})
        QVERIFY(host.ask<bool>("checkSupportSystemMonitor", id));
    host.log.take();
    const QList<SentCommand> commands = host.framework.commands();
    for (const int answered : {2, 0, 1})
        host.respond(commands[answered].command, {}, u"0"_s, commands[answered].context);
    QCOMPARE(host.log.take(), QStringList({u"isSupportSystemMonitor(\"A\", true)"_s,
                                           u"isSupportSystemMonitor(\"A\", true)"_s,
                                           u"isSupportSystemMonitor(\"B\", true)"_s}));
}

// A host may turn a command down and still answer it, with the code for its own failures. The
// context shares the id's text: the id stands alone again exactly when the context is gone.
void tst_Reconnection::contextOfARefusedQuestionIsFreedWithItsAnswer()
{
    TestHost host;
    host.framework.acceptsCommands = false;
    const QString stationID = QString::number(1);
    QVERIFY(!host.ask<bool>("checkSupportSystemMonitor", stationID));
    void *const context = host.framework.commands().first().context;
    host.framework.forgetCommands();
    host.log.take();
    QVERIFY2(!stationID.isDetached(), "The context is gone before its answer");
    host.respond(u"isSupportSystemMonitor"_s, {},
                 u"{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError"_s, context);
    QCOMPARE(host.log.take(), QStringList{u"isSupportSystemMonitor(\"1\", false)"_s});
    QVERIFY(stationID.isDetached());
}

QTEST_GUILESS_MAIN(tst_Reconnection)
#include "tst_Reconnection.moc"
