#include "PluginRecorder.h"

#include "FakeMonitor.h"
#include "JournalReader.h"
#include "JournalWriter.h"
#include "VirtualClock.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class tst_PluginRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void inputsAreWrittenAndPassedOn();
    void signalsAreRelayed();
    void surfaceIsThePlugins();
    void endHasTheErrorList();
    void pluginThatIsGoneIsLeftAlone();

private:
    QStringList entries() const;

    CallLog m_log;
    VirtualClock m_clock;
    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<FakeMonitor> m_monitor;
    std::unique_ptr<JournalWriter> m_journal;
    std::unique_ptr<PluginRecorder> m_recorder;
};

void tst_PluginRecorder::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_log.take();
    m_directory = std::make_unique<QTemporaryDir>();
    m_monitor = std::make_unique<FakeMonitor>(m_log);
    m_journal = std::make_unique<JournalWriter>(m_directory->filePath(QStringLiteral("j")),
                                                QStringLiteral("plugin"), m_clock);
    m_recorder = std::make_unique<PluginRecorder>(*m_monitor, *m_journal);
    m_recorder->InitialPluginBase(nullptr, nullptr, nullptr);
    m_log.take();
}

void tst_PluginRecorder::cleanup()
{
    m_recorder.reset();
    m_journal.reset();
}

QStringList tst_PluginRecorder::entries() const
{
    QStringList lines;
    for (const JournalEntry &entry :
         readJournal(m_directory->filePath(QStringLiteral("j"))).entries)
        lines.append(QString::fromUtf8(QJsonDocument(entry.object).toJson(QJsonDocument::Compact)));
    return lines;
}

void tst_PluginRecorder::inputsAreWrittenAndPassedOn()
{
    m_recorder->PluginServerConnected();
    m_clock.advance(250);
    m_recorder->EventProcessor(QStringLiteral("E"), 0, 0, 0, QVariantMap{{QStringLiteral("a"), 1}},
                               QStringLiteral("st"));
    m_recorder->CommandProcessor(QStringLiteral("c"), QStringList{QStringLiteral("x")}, this,
                                 QStringLiteral("0"), {}, false, QStringLiteral("t"));
    QCOMPARE(m_monitor->lastContext, static_cast<void *>(this));
    m_recorder->monitorNodeStatus(0, QStringLiteral("n"), false);
    QVERIFY(m_recorder->setSnooze(QStringLiteral("n"), 1'780'660'800, 3));
    m_recorder->setFocusStationResource(QStringLiteral("st"));
    m_recorder->PluginServerDisconnected();
    QCOMPARE(
        entries(),
        QStringList(
            {QStringLiteral(R"({"at":0,"server":true})"),
             QStringLiteral(R"({"at":250,"data":{"a":1},"event":"E","source":"st"})"),
             QStringLiteral(R"({"at":250,"code":"0","data":["x"],"response":"c","target":"t"})"),
             QStringLiteral(R"({"arguments":[0,"n",false],"at":250,"call":"monitorNodeStatus"})"),
             QStringLiteral(R"({"arguments":["n",1780660800,3],"at":250,"call":"setSnooze"})"),
             QStringLiteral(R"({"at":250,"set":"focusStationResource","value":"st"})"),
             QStringLiteral(R"({"at":250,"server":false})")}));
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("server connected"),
                                        QStringLiteral(R"(event E {"a": 1} from 'st')"),
                                        QStringLiteral(R"(response c QStringList["x"] 0)"),
                                        QStringLiteral("monitorNodeStatus 0 n 0"),
                                        QStringLiteral("setSnooze n 1780660800 3"),
                                        QStringLiteral("server disconnected")}));
    QCOMPARE(m_recorder->focusStationResource(), QStringLiteral("st"));
}

void tst_PluginRecorder::signalsAreRelayed()
{
    const QSignalSpy support(m_recorder.get(), &PluginRecorder::isSupportSystemMonitor);
    const QSignalSpy sample(m_recorder.get(), &PluginRecorder::clientResourceChanged);
    Q_EMIT m_monitor->isSupportSystemMonitor(QStringLiteral("st"), true);
    Q_EMIT m_monitor->clientResourceChanged(1, 2);
    QCOMPARE(support.size(), 1);
    QCOMPARE(support.at(0), QVariantList({QStringLiteral("st"), true}));
    QCOMPARE(sample.size(), 1);
    QCOMPARE(entries(), QStringList());
}

void tst_PluginRecorder::surfaceIsThePlugins()
{
    QCOMPARE(m_recorder->getSystemErrorModel(), m_monitor->getSystemErrorModel());
    QVERIFY(m_recorder->checkSupportSystemMonitor(QStringLiteral("st")));
    m_recorder->reconnectDisconnectCameras();
    m_recorder->reconnectDisconnectSubstations();
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("checkSupportSystemMonitor st"),
                                        QStringLiteral("reconnectDisconnectCameras"),
                                        QStringLiteral("reconnectDisconnectSubstations")}));
}

void tst_PluginRecorder::endHasTheErrorList()
{
    static_cast<ErrorModel *>(m_monitor->getSystemErrorModel())
        ->add(QStringLiteral("3_c"), 3, QStringLiteral("Lost"), QStringLiteral("Door"));
    m_recorder->finish();
    m_recorder->PluginServerConnected();
    const Journal journal = readJournal(m_directory->filePath(QStringLiteral("j")));
    QVERIFY(journal.entries.empty());
    QCOMPARE(journal.errors.value_or(QStringList()).size(), 1);
    const QString error = journal.errors->constFirst();
    for (const char *const field : {"errorNameRole=Lost; ", "errorTypeRole=3; ",
                                    "triggerDeviceNameRole=Door; ", "uniqueIDRole=3_c"})
        QVERIFY2(error.contains(QString::fromLatin1(field)), qPrintable(error));
}

void tst_PluginRecorder::pluginThatIsGoneIsLeftAlone()
{
    m_monitor.reset();
    m_recorder->CommandProcessor(QStringLiteral("c"), {}, nullptr, QStringLiteral("0"), {}, false,
                                 {});
    m_recorder->reconnectDisconnectCameras();
    QVERIFY(!m_recorder->getSystemErrorModel());
    m_recorder->finish();
}

QTEST_GUILESS_MAIN(tst_PluginRecorder)
#include "tst_PluginRecorder.moc"
