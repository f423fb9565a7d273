#include "TopologyPlugin.h"

#include "SignalLog.h"
#include "TestSite.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <memory>

namespace {

// "type id name up", with every role that holds a name or an id.
QString printedNode(const QModelIndex &index)
{
    const QString id = index.data(257).toString();
    const QString name = index.data(258).toMap().value(QStringLiteral("nameRole")).toString();
    if (index.data(260).toString() != id || index.data(259).toString() != name)
        return QStringLiteral("roles differ");
    return QStringLiteral("%1 %2 '%3' %4")
        .arg(index.data(262).toInt())
        .arg(id, name, index.data(284).toBool() ? QStringLiteral("up") : QStringLiteral("down"));
}

QStringList printedTree(const QAbstractItemModel &model, const QModelIndex &parent = {},
                        int depth = 0)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        lines.append(QString(depth, u'-') + printedNode(index));
        lines.append(printedTree(model, index, depth + 1));
    }
    return lines;
}

} // namespace

class tst_TopologyPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void modelIsReachedByName();
    void modelHoldsTheSiteAsOneTree();
    void anotherSiteTakesThePlaceOfTheFirst();
    void statusIsInTheModelBeforeItsSignal();
    void removedCameraLeavesTheModel();
    void removedStationLeavesWithAllBelowIt();
    void unknownNodesAreIgnored();
    void retrievedStatesAreAnnounced();
    void signaturesAreThoseThatOthersConnectTo_data();
    void signaturesAreThoseThatOthersConnectTo();

private:
    QAbstractItemModel &model() const;
    QModelIndex find(const QString &id) const;

    CallLog m_log;
    std::unique_ptr<TopologyPlugin> m_topology;
    std::unique_ptr<SignalLog> m_signals;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void tst_TopologyPlugin::init()
{
    m_log.take();
    m_topology = std::make_unique<TopologyPlugin>();
    m_signals = std::make_unique<SignalLog>(m_topology.get(), m_log);
    m_tester = std::make_unique<QAbstractItemModelTester>(
        &model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_topology->setSite(testSite());
}

QAbstractItemModel &tst_TopologyPlugin::model() const
{
    return *qobject_cast<QAbstractItemModel *>(m_topology->getStandardTopologyModel());
}

QModelIndex tst_TopologyPlugin::find(const QString &id) const
{
    return model()
        .match(model().index(0, 0), 257, id, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

void tst_TopologyPlugin::modelIsReachedByName()
{
    QObject *result = nullptr;
    QVERIFY(QMetaObject::invokeMethod(m_topology.get(), "getStandardTopologyModel",
                                      Qt::DirectConnection, Q_RETURN_ARG(QObject *, result)));
    QVERIFY(qobject_cast<QStandardItemModel *>(result));
    m_topology->setSite({});
    QCOMPARE(m_topology->getStandardTopologyModel(), result);
}

void tst_TopologyPlugin::modelHoldsTheSiteAsOneTree()
{
    QCOMPARE(
        printedTree(model()),
        QStringList(
            {QStringLiteral("2  'Test site' up"), QStringLiteral("-1 north 'North' up"),
             QStringLiteral("--0 north/c1 'Door' up"), QStringLiteral("--0 north/c2 'Yard' up"),
             QStringLiteral("--1 north/annex 'Annex' up"),
             QStringLiteral("---0 north/annex/c1 'Stairs' up"),
             QStringLiteral("-1 south 'South' up"), QStringLiteral("--0 south/c1 'Gate' up")}));
    QCOMPARE(m_log.take(), QStringList());
}

void tst_TopologyPlugin::anotherSiteTakesThePlaceOfTheFirst()
{
    Site site;
    site.name = QStringLiteral("Other");
    m_topology->setSite(site);
    QCOMPARE(printedTree(model()), QStringList{QStringLiteral("2  'Other' up")});
    m_topology->setNodeStatus(NodeType::Station, QStringLiteral("north"), false);
    QCOMPARE(m_log.take(), QStringList());
}

void tst_TopologyPlugin::statusIsInTheModelBeforeItsSignal()
{
    const auto wasConnected = std::make_shared<bool>(true);
    connect(m_topology.get(), &TopologyPlugin::nodeStatusChanged, this,
            [this, wasConnected](int, const QString &id) {
                *wasConnected = find(id).data(284).toBool();
            });
    m_topology->setNodeStatus(NodeType::Camera, QStringLiteral("north/c1"), false);
    QVERIFY(!*wasConnected);
    m_topology->setNodeStatus(NodeType::Station, QStringLiteral("north/annex"), false);
    m_topology->setNodeStatus(NodeType::Station, QStringLiteral("north/annex"), true);
    QVERIFY(*wasConnected);
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral(R"(nodeStatusChanged(0, "north/c1", false))"),
                          QStringLiteral(R"(nodeStatusChanged(1, "north/annex", false))"),
                          QStringLiteral(R"(nodeStatusChanged(1, "north/annex", true))")}));
}

void tst_TopologyPlugin::removedCameraLeavesTheModel()
{
    m_topology->removeCamera(QStringLiteral("north/c1"));
    m_topology->removeCamera(QStringLiteral("north/c1"));
    QVERIFY(!find(QStringLiteral("north/c1")).isValid());
    QVERIFY(find(QStringLiteral("north/c2")).isValid());
    QCOMPARE(m_log.take(), QStringList{QStringLiteral(R"(deviceRemoved("north/c1"))")});
}

void tst_TopologyPlugin::removedStationLeavesWithAllBelowIt()
{
    m_topology->removeStation(QStringLiteral("north"));
    m_topology->setNodeStatus(NodeType::Camera, QStringLiteral("north/annex/c1"), false);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral(R"(stationRemoved("north"))")});
    QCOMPARE(printedTree(model()), QStringList({QStringLiteral("2  'Test site' up"),
                                                QStringLiteral("-1 south 'South' up"),
                                                QStringLiteral("--0 south/c1 'Gate' up")}));
}

void tst_TopologyPlugin::unknownNodesAreIgnored()
{
    const QString unknown = QStringLiteral("west");
    m_topology->setNodeStatus(NodeType::Station, unknown, false);
    m_topology->removeCamera(unknown);
    m_topology->removeStation(unknown);
    m_topology->removeStation(QString());
    QCOMPARE(m_log.take(), QStringList());
}

void tst_TopologyPlugin::retrievedStatesAreAnnounced()
{
    m_topology->announceStatesRetrieved(true);
    m_topology->announceStatesRetrieved(false);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("camStatusRetrievedChanged(true)"),
                                        QStringLiteral("camStatusRetrievedChanged(false)")}));
}

void tst_TopologyPlugin::signaturesAreThoseThatOthersConnectTo_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::newRow("status") << QByteArray("nodeStatusChanged(int, const QString &, bool)");
    QTest::newRow("camera") << QByteArray("deviceRemoved(const QString &)");
    QTest::newRow("station") << QByteArray("stationRemoved(const QString &)");
    QTest::newRow("states") << QByteArray("camStatusRetrievedChanged(bool)");
}

void tst_TopologyPlugin::signaturesAreThoseThatOthersConnectTo()
{
    QFETCH(QByteArray, signature);
    const QByteArray normalised = QMetaObject::normalizedSignature(signature.constData());
    QVERIFY(TopologyPlugin::staticMetaObject.indexOfSignal(normalised.constData()) >= 0);
}

QTEST_GUILESS_MAIN(tst_TopologyPlugin)
#include "tst_TopologyPlugin.moc"
