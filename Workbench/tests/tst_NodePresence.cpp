#include "NodePresence.h"

#include "SiteServer.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class tst_NodePresence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nodeIsLostAfterSomeFailures_data();
    void nodeIsLostAfterSomeFailures();
    void answerStartsTheCountAnew();
    void nodeThatAnswersAgainIsBack();
    void nodeThatIsSilentFromTheBeginningStaysDisconnected();
    void nodeThatWasReportedOtherwiseIsSetRight();
    void removedNodeIsLeftAlone();

private:
    VirtualClock m_clock;
    std::unique_ptr<SiteServer> m_server;
};

namespace {

const QString StationId = QStringLiteral("north");
const QString Reason = QStringLiteral("why");

void fail(NodePresence &presence, int times)
{
    for (int i = 0; i < times; ++i)
        presence.failed(Reason);
}

} // namespace

void tst_NodePresence::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_server = std::make_unique<SiteServer>(testSite(), m_clock);
}

void tst_NodePresence::nodeIsLostAfterSomeFailures_data()
{
    QTest::addColumn<NodeType>("type");
    QTest::addColumn<QString>("id");
    QTest::newRow("station") << NodeType::Station << StationId;
    QTest::newRow("camera") << NodeType::Camera << QStringLiteral("north/c1");
}

void tst_NodePresence::nodeIsLostAfterSomeFailures()
{
    QFETCH(NodeType, type);
    QFETCH(QString, id);
    NodePresence presence(*m_server, type, id, 3);
    const QSignalSpy told(m_server.get(), &SiteServer::nodeStatusChanged);
    const QSignalSpy lost(&presence, &NodePresence::lost);
    fail(presence, 2);
    QCOMPARE(told.size(), 0);
    fail(presence, 1);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().at(0).value<NodeType>(), type);
    QCOMPARE(told.first().at(1).toString(), id);
    QCOMPARE(told.first().at(2).toBool(), false);
    QCOMPARE(lost.size(), 1);
    QCOMPARE(lost.first(), QVariantList({id, Reason}));
    fail(presence, 5);
    QCOMPARE(told.size(), 1);
    QCOMPARE(lost.size(), 1);
}

void tst_NodePresence::answerStartsTheCountAnew()
{
    NodePresence presence(*m_server, NodeType::Station, StationId, 2);
    const QSignalSpy lost(&presence, &NodePresence::lost);
    for (int i = 0; i < 3; ++i) {
        presence.failed(Reason);
        presence.answered();
    }
    QCOMPARE(lost.size(), 0);
}

void tst_NodePresence::nodeThatAnswersAgainIsBack()
{
    NodePresence presence(*m_server, NodeType::Station, StationId, 2);
    const QSignalSpy back(&presence, &NodePresence::back);
    presence.answered();
    QCOMPARE(back.size(), 0);
    fail(presence, 2);
    presence.answered();
    presence.answered();
    QCOMPARE(back.size(), 1);
    QCOMPARE(back.first(), QVariantList{StationId});
    QVERIFY(m_server->site().findStation(StationId)->connected);
    fail(presence, 1);
    QVERIFY(m_server->site().findStation(StationId)->connected);
}

void tst_NodePresence::nodeThatIsSilentFromTheBeginningStaysDisconnected()
{
    m_server->setStationConnected(StationId, false);
    NodePresence presence(*m_server, NodeType::Station, StationId, 1);
    const QSignalSpy lost(&presence, &NodePresence::lost);
    fail(presence, 3);
    QCOMPARE(lost.size(), 0);
    presence.answered();
    QVERIFY(m_server->site().findStation(StationId)->connected);
}

void tst_NodePresence::nodeThatWasReportedOtherwiseIsSetRight()
{
    NodePresence presence(*m_server, NodeType::Station, StationId, 2);
    fail(presence, 2);
    m_server->setStationConnected(StationId, true);
    fail(presence, 1);
    QVERIFY(!m_server->site().findStation(StationId)->connected);

    presence.answered();
    m_server->setStationConnected(StationId, false);
    presence.answered();
    QVERIFY(m_server->site().findStation(StationId)->connected);
}

void tst_NodePresence::removedNodeIsLeftAlone()
{
    NodePresence presence(*m_server, NodeType::Station, StationId, 1);
    const QSignalSpy lost(&presence, &NodePresence::lost);
    const QSignalSpy back(&presence, &NodePresence::back);
    m_server->removeStation(StationId);
    fail(presence, 2);
    presence.answered();
    QCOMPARE(lost.size() + back.size(), 0);
}

QTEST_GUILESS_MAIN(tst_NodePresence)
#include "tst_NodePresence.moc"
