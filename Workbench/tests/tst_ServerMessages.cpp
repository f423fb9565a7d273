#include "ServerMessages.h"

#include "InputFailure.h"
#include "TestSite.h"

#include <QTest>

namespace {

// What is read from a text, written anew.
QString again(const QString &text)
{
    return std::visit([](const auto &message) { return toText(message); }, readServerMessage(text));
}

} // namespace

class tst_ServerMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesComeThroughUnchanged_data();
    void messagesComeThroughUnchanged();
    void siteComesThroughUnchanged();
    void dataKeepsItsKinds();
    void malformedMessagesAreRefused_data();
    void malformedMessagesAreRefused();
};

void tst_ServerMessages::messagesComeThroughUnchanged_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QString &text) { QTest::newRow(name) << text; };
    row("welcome",
        toText(ServerMessage::Welcome{
            testSite(), {{QStringLiteral("south"), 4, 253'402'300'799}}, 253'402'300'799'000}));
    row("refused", toText(ServerMessage::Refused{QStringLiteral("wrong"), true}));
    row("sent away", toText(ServerMessage::Refused{QStringLiteral("full"), false}));
    row("result", toText(ServerMessage::Result{3, QStringLiteral("0"), QVariant(7)}));
    row("result without data", toText(ServerMessage::Result{0, QStringLiteral("x"), {}}));
    row("camera", toText(ServerMessage::NodeStatus{NodeType::Camera, QStringLiteral("a/b"), true}));
    row("station",
        toText(ServerMessage::NodeStatus{NodeType::Station, QStringLiteral("a"), false}));
    row("camera removed", toText(ServerMessage::CameraRemoved{QStringLiteral("a/b")}));
    row("station removed", toText(ServerMessage::StationRemoved{QStringLiteral("a")}));
    row("storage", toText(ServerMessage::StorageChanged{testSite().stations.front()}));
    row("snoozed", toText(ServerMessage::Snoozed{{QStringLiteral("north/c1"), 3, 100}}));
    row("snooze ended", toText(ServerMessage::SnoozeEnded{QStringLiteral("south")}));
    row("event", toText(ServerMessage::Event{QStringLiteral("E"), QStringLiteral("data"),
                                             QStringLiteral("a")}));
    row("event of the server", toText(ServerMessage::Event{QStringLiteral("E"), {}, {}}));
}

void tst_ServerMessages::messagesComeThroughUnchanged()
{
    QFETCH(QString, text);
    QCOMPARE(again(text), text);
}

void tst_ServerMessages::siteComesThroughUnchanged()
{
    Site site = testSite();
    site.findCamera(QStringLiteral("north/annex/c1"))->connected = false;
    site.findStation(QStringLiteral("north"))->volumes.at(1).connected = false;
    const Site read = std::get<ServerMessage::Welcome>(
                          readServerMessage(toText(ServerMessage::Welcome{site, {}})))
                          .site;
    QCOMPARE(read.name, site.name);
    QCOMPARE(read.stationCount(), site.stationCount());
    QCOMPARE(read.cameraCount(), site.cameraCount());
    QVERIFY(!read.findCamera(QStringLiteral("north/annex/c1"))->connected);
    QVERIFY(!read.findStation(QStringLiteral("south"))->supportsMonitoring);
    QVERIFY(read.findStation(QStringLiteral("north"))->hasLostVolume());
    QCOMPARE(read.findStation(QStringLiteral("north"))->recordingGroups.at(0).recordedDays, 30);
}

void tst_ServerMessages::dataKeepsItsKinds()
{
    const QVariantMap data{{QStringLiteral("text"), QStringLiteral("ä")},
                           {QStringLiteral("seconds"), 253'402'300'799LL},
                           {QStringLiteral("percentage"), 87.5},
                           {QStringLiteral("list"), QVariantList{QVariantMap()}}};
    const QString text = toText(ServerMessage::Event{QStringLiteral("E"), data, {}});
    const QVariant read = std::get<ServerMessage::Event>(readServerMessage(text)).data;
    QCOMPARE(read.typeId(), int(QMetaType::QVariantMap));
    QCOMPARE(read.toMap(), data);
    QCOMPARE(read.toMap().value(QStringLiteral("seconds")).toLongLong(), 253'402'300'799LL);
}

void tst_ServerMessages::malformedMessagesAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *text, const char *message) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(message);
    };
    row("no JSON", "welcome", "message: line 1: expected valid JSON, found: illegal value");
    row("unknown type", R"({"type":"hello"})",
        "message: type: expected one of cameraRemoved, event, nodeStatus, refused, result, "
        "snoozeEnded, snoozed, "
        "stationRemoved, storageChanged, welcome, found \"hello\"");
    row("site without stations", R"({"type":"welcome","site":{"name":"S"}})",
        "message: site.stations: expected a list of objects, found nothing");
    row("welcome without the time",
        R"({"type":"welcome","site":{"name":"S","stations":[]},"snoozes":[]})",
        "message: time: expected a number from 0 to 253402300799000, found nothing");
    row("camera with a whole id",
        R"({"type":"welcome","site":{"name":"S","stations":[{"id":"a","name":"A",)"
        R"("cameras":[{"id":"a/b","name":"B"}]}]}})",
        "message: site.stations[0].cameras[0].id: expected an id without \"/\", found \"a/b\"");
    row("snooze of another kind",
        R"({"type":"snoozed","snooze":{"nodeID":"a","type":5,"timestamp":1}})",
        "message: snooze.type: expected a whole number from 3 to 4, found the number 5");
    row("status of nothing", R"({"type":"nodeStatus","connected":true})",
        "message: station: expected a text, found nothing");
    row("status that is not told", R"({"type":"nodeStatus","camera":"a/b"})",
        "message: connected: expected true or false, found nothing");
    row("status as a text", R"({"type":"nodeStatus","camera":"a/b","connected":"yes"})",
        "message: connected: expected true or false, found \"yes\"");
    row("refusal that may be final or not", R"({"type":"refused","reason":"r"})",
        "message: final: expected true or false, found nothing");
    row("status of two", R"({"type":"nodeStatus","camera":"a/b","connected":true,"station":"a"})",
        "message: station: expected one of the keys camera, connected, type, found an unknown key");
    row("result without a code", R"({"type":"result","id":1})",
        "message: code: expected a text, found nothing");
    row("volume without a name",
        R"({"type":"storageChanged","station":"a","volumes":[{"id":"v"}]})",
        "message: volumes[0].name: expected a text, found nothing");
}

void tst_ServerMessages::malformedMessagesAreRefused()
{
    QFETCH(QString, text);
    QTEST(inputFailure([&text] { readServerMessage(text); }), "message");
}

QTEST_GUILESS_MAIN(tst_ServerMessages)
#include "tst_ServerMessages.moc"
