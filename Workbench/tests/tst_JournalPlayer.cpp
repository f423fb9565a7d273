#include "JournalPlayer.h"

#include "FakeMonitor.h"
#include "InputFailure.h"
#include "VirtualClock.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

Journal journalOf(const QList<QByteArray> &entries)
{
    Journal journal;
    journal.fileName = QStringLiteral("FILE");
    for (const QByteArray &text : entries) {
        const QJsonObject entry = QJsonDocument::fromJson(text).object();
        journal.entries.push_back({entry.value(QStringLiteral("at")).toInteger(), entry,
                                   static_cast<int>(journal.entries.size()) + 2});
    }
    return journal;
}

} // namespace

class tst_JournalPlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void inputsComeAtTheirTimes();
    void withoutAClockTheyComeInTurn();
    void contextsGoBackToTheirCommands();
    void callThatIsNoInputIsRefusedAtOnce_data();
    void callThatIsNoInputIsRefusedAtOnce();
    void entryThatDoesNotFitEndsThePlay();

private:
    CallLog m_log;
};

void tst_JournalPlayer::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_log.take();
}

void tst_JournalPlayer::inputsComeAtTheirTimes()
{
    VirtualClock clock;
    FakeMonitor monitor(m_log);
    JournalPlayer player(
        monitor, nullptr,
        journalOf({R"({"at": 100, "server": true})",
                   R"({"at": 100, "call": "monitorVolumeStatus", "arguments": ["st"]})",
                   R"({"at": 900, "server": false})"}),
        &clock);
    const QSignalSpy finished(&player, &JournalPlayer::finished);
    m_log.take();
    player.start();
    clock.advance(99);
    QCOMPARE(m_log.take(), QStringList());
    clock.advance(1);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("server connected"),
                                        QStringLiteral("monitorVolumeStatus st")}));
    clock.advance(799);
    QCOMPARE(finished.size(), 0);
    clock.advance(1);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("server disconnected")});
    QCOMPARE(finished.size(), 1);
}

void tst_JournalPlayer::withoutAClockTheyComeInTurn()
{
    FakeMonitor monitor(m_log);
    JournalPlayer player(
        monitor, nullptr,
        journalOf({R"({"at": 5000, "event": "E", "data": {"a": 1}, "source": "st"})",
                   R"({"at": 9000, "set": "focusStationResource", "value": "st"})"}),
        nullptr);
    QSignalSpy finished(&player, &JournalPlayer::finished);
    m_log.take();
    player.start();
    QVERIFY(finished.wait());
    QCOMPARE(m_log.take().size(), 1);
    QCOMPARE(monitor.property("focusStationResource").toString(), QStringLiteral("st"));
}

void tst_JournalPlayer::contextsGoBackToTheirCommands()
{
    ReplayFramework framework;
    int first = 0;
    int second = 0;
    const QString command = QStringLiteral("c");
    framework.SendCommand(nullptr, {}, command, {}, &first, 0, QStringLiteral("a"));
    framework.SendCommand(nullptr, {}, command, {}, &second, 0, QStringLiteral("b"));
    QCOMPARE(framework.takeContext(command, QStringLiteral("b")), static_cast<void *>(&second));
    QCOMPARE(framework.takeContext(command, QStringLiteral("b")), static_cast<void *>(nullptr));
    QCOMPARE(framework.takeUnanswered().size(), std::size_t(1));
    QCOMPARE(framework.takeContext(command, QStringLiteral("a")), static_cast<void *>(nullptr));
}

void tst_JournalPlayer::callThatIsNoInputIsRefusedAtOnce_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << QStringLiteral("fly");
    QTest::newRow("every object's own") << QStringLiteral("deleteLater");
    QTest::newRow("that asks for an object") << QStringLiteral("getSystemErrorModel");
    QTest::newRow("other number of arguments") << QStringLiteral("setSnooze");
}

void tst_JournalPlayer::callThatIsNoInputIsRefusedAtOnce()
{
    QFETCH(QString, name);
    FakeMonitor monitor(m_log);
    const QByteArray call = R"({"at": 1, "call": ")" + name.toLatin1() + R"(", "arguments": []})";
    const Journal journal = journalOf({R"({"at": 0, "server": true})", call});
    QCOMPARE(inputFailure([&] { JournalPlayer(monitor, nullptr, journal, nullptr); }),
             QStringLiteral("FILE: line 3: expected a call that the plug-in has, found \"%1\" "
                            "with 0 arguments")
                 .arg(name));
    QCOMPARE(m_log.take(), QStringList());
}

void tst_JournalPlayer::entryThatDoesNotFitEndsThePlay()
{
    VirtualClock clock;
    FakeMonitor monitor(m_log);
    JournalPlayer player(monitor, nullptr,
                         journalOf({R"({"at": 0, "topology": {"path": [3], "change": {}}})",
                                    R"({"at": 0, "server": true})"}),
                         &clock);
    const QSignalSpy failed(&player, &JournalPlayer::failed);
    m_log.take();
    player.start();
    clock.advance(1000);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.at(0).at(0).toInt(), 2);
    QCOMPARE(m_log.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_JournalPlayer)
#include "tst_JournalPlayer.moc"
