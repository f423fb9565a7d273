#include "ModelRoles.h"
#include "TestHost.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

/// The views of the error list that QML asks for.
class tst_SortFilterProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void eachCallGivesAProxyOfItsOwn();
    void proxyIsReleasedWithItsParent();
    void proxyGoesOnWithoutThePlugin();
    void proxyShowsEverythingAtFirst();
    void proxyKnowsTheRolesOfTheList();
    void newestErrorComesFirst();
    void categoryNarrowsTheList_data();
    void categoryNarrowsTheList();
    void textNarrowsTheList_data();
    void textNarrowsTheList();
    void textIsComparedWithCaseOnRequest();
    void optionsOfTheExpressionAreDropped();
    void invalidPatternShowsNothing();
    void stationNarrowsTheList_data();
    void stationNarrowsTheList();
    void filtersCombine();
    void filterFollowsARelabelledError();
    void proxiesKeepTheirOwnSettings();
};

namespace {

QSortFilterProxyModel *makeProxy(TestHost &host, QObject *parent)
{
    return qobject_cast<QSortFilterProxyModel *>(
        host.ask<QObject *>("getSystemErrorSortFilterModel", parent));
}

void call(QObject *proxy, const char *setter, int value)
{
    QVERIFY(QMetaObject::invokeMethod(proxy, setter, Q_ARG(int, value)));
}

void call(QObject *proxy, const char *setter, const QString &value)
{
    QVERIFY(QMetaObject::invokeMethod(proxy, setter, Q_ARG(QString, value)));
}

// What a proxy shows, regardless of the order of errors of the same millisecond.
QStringList shown(const QAbstractItemModel &proxy)
{
    QStringList keys = errorKeys(proxy);
    keys.sort();
    return keys;
}

void addErrors(TestHost &host)
{
    QStandardItem *const lobby = host.topologyModel.addStation(u"st1"_s, u"Lobby (East)"_s);
    TopologyModel::addCamera(lobby, u"st1/cam1"_s, u"Door"_s);
    host.topologyModel.addStation(u"st10"_s, u"Disconnected wing"_s);
    Q_EMIT host.topology.nodeStatusChanged(0, u"st1/cam1"_s, false);
    host.invoke("monitorCPUUsage", u"st10"_s, 100);
    host.invoke("monitorVolumeStatus", u"xst1"_s);
    host.invoke("monitorMemoryUsage", u"st2"_s, 100);
}

const QStringList All{u"0_st10"_s, u"1_st2"_s, u"3_st1/cam1"_s, u"5_xst1"_s};

} // namespace

void tst_SortFilterProxy::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_SortFilterProxy::eachCallGivesAProxyOfItsOwn()
{
    TestHost host;
    QObject parent;
    const auto *const first = makeProxy(host, &parent);
    const auto *const second = makeProxy(host, &parent);
    QVERIFY(first && second && first != second);
    for (const QSortFilterProxyModel *proxy : {first, second}) {
        QCOMPARE(proxy->parent(), &parent);
        QCOMPARE(proxy->sourceModel(), host.errors());
    }
}

void tst_SortFilterProxy::proxyIsReleasedWithItsParent()
{
    TestHost host;
    QPointer<QObject> proxy;
    {
        QObject parent;
        proxy = makeProxy(host, &parent);
        QVERIFY(proxy);
    }
    QVERIFY(!proxy);
}

void tst_SortFilterProxy::proxyGoesOnWithoutThePlugin()
{
    QObject parent;
    QSortFilterProxyModel *proxy = nullptr;
    {
        TestHost host;
        proxy = makeProxy(host, &parent);
        addErrors(host);
        QCOMPARE(proxy->rowCount(), 4);
    }
    QCOMPARE(proxy->rowCount(), 0);
}

void tst_SortFilterProxy::proxyShowsEverythingAtFirst()
{
    TestHost host;
    QObject parent;
    auto *const early = makeProxy(host, &parent);
    const QAbstractItemModelTester tester(early);
    addErrors(host);
    auto *const late = makeProxy(host, &parent);
    QCOMPARE(shown(*early), All);
    QCOMPARE(shown(*late), All);
}

void tst_SortFilterProxy::proxyKnowsTheRolesOfTheList()
{
    TestHost host;
    QObject parent;
    QCOMPARE(makeProxy(host, &parent)->roleNames(), host.errors()->roleNames());
}

// Times are given here, because errors of one millisecond have no order.
void tst_SortFilterProxy::newestErrorComesFirst()
{
    TestHost host;
    QObject parent;
    auto *const early = makeProxy(host, &parent);
    addErrors(host);
    const qint64 times[]{2000, 4000, 1000, 3000};
    for (int row = 0; row < 4; ++row)
        host.errors()->setData(host.errors()->index(row, 0), times[row], ErrorRole::Timestamp);
    const QStringList order{u"0_st10"_s, u"1_st2"_s, u"3_st1/cam1"_s, u"5_xst1"_s};
    QCOMPARE(errorKeys(*early), order);
    QCOMPARE(errorKeys(*makeProxy(host, &parent)), order);

    host.invoke("monitorVolumeStatus", u"new"_s);
    QCOMPARE(errorKeys(*early).constFirst(), u"5_new"_s);
    host.errors()->setData(host.errors()->index(4, 0), QVariant(), ErrorRole::Timestamp);
    QCOMPARE(errorKeys(*early).constLast(), u"5_new"_s);
}

void tst_SortFilterProxy::categoryNarrowsTheList_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<QStringList>("keys");
    const QStringList camera{u"3_st1/cam1"_s};
    const QStringList stations{u"0_st10"_s, u"1_st2"_s, u"5_xst1"_s};
    QTest::newRow("stations") << 1 << stations;
    QTest::newRow("cameras") << 2 << camera;
    QTest::newRow("both") << 3 << All;
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("another bit") << 4 << QStringList();
    QTest::newRow("cameras and another bit") << 6 << camera;
    QTest::newRow("all bits") << -1 << All;
}

void tst_SortFilterProxy::categoryNarrowsTheList()
{
    QFETCH(const int, mask);
    QFETCH(const QStringList, keys);
    TestHost host;
    QObject parent;
    auto *const proxy = makeProxy(host, &parent);
    const QAbstractItemModelTester tester(proxy);
    addErrors(host);
    call(proxy, "setErrorCategory", mask);
    QCOMPARE(shown(*proxy), keys);

    // An error without category, or whose only category is the sign bit, never shows.
    host.errors()->setData(host.errors()->index(0, 0), 0, ErrorRole::Category);
    QVERIFY(!shown(*proxy).contains(u"3_st1/cam1"_s));
    host.errors()->setData(host.errors()->index(0, 0), std::numeric_limits<int>::min(),
                           ErrorRole::Category);
    QVERIFY(!shown(*proxy).contains(u"3_st1/cam1"_s));
}

void tst_SortFilterProxy::textNarrowsTheList_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("nothing") << QString() << All;
    QTest::newRow("error name or origin, any case")
        << u"DISCONNECTED"_s << QStringList({u"0_st10"_s, u"3_st1/cam1"_s, u"5_xst1"_s});
    QTest::newRow("origin") << u"lobby"_s << QStringList({u"3_st1/cam1"_s});
    QTest::newRow("error name") << u"usage over"_s << QStringList({u"1_st2"_s});
    QTest::newRow("expression") << u"^(CPU|Memory)"_s << QStringList({u"0_st10"_s, u"1_st2"_s});
    QTest::newRow("escaped") << u"\\(east\\)"_s << QStringList({u"3_st1/cam1"_s});
    QTest::newRow("ids are not searched") << u"st1"_s << QStringList();
    QTest::newRow("no match") << u"garage"_s << QStringList();
}

void tst_SortFilterProxy::textNarrowsTheList()
{
    QFETCH(const QString, pattern);
    QFETCH(const QStringList, keys);
    TestHost host;
    QObject parent;
    auto *const proxy = makeProxy(host, &parent);
    const QAbstractItemModelTester tester(proxy);
    addErrors(host);
    proxy->setFilterRegularExpression(pattern);
    QCOMPARE(shown(*proxy), keys);
    proxy->setFilterRegularExpression(QString());
    QCOMPARE(shown(*proxy), All);
}

void tst_SortFilterProxy::textIsComparedWithCaseOnRequest()
{
    TestHost host;
    QObject parent;
    auto *const proxy = makeProxy(host, &parent);
    QCOMPARE(proxy->filterCaseSensitivity(), Qt::CaseInsensitive);
    addErrors(host);
    proxy->setFilterRegularExpression(u"LOBBY"_s);
    QCOMPARE(shown(*proxy), QStringList({u"3_st1/cam1"_s}));
    proxy->setFilterCaseSensitivity(Qt::CaseSensitive);
    QCOMPARE(shown(*proxy), QStringList());
    proxy->setFilterRegularExpression(u"Lobby"_s);
    QCOMPARE(shown(*proxy), QStringList({u"3_st1/cam1"_s}));
}

void tst_SortFilterProxy::optionsOfTheExpressionAreDropped()
{
    TestHost host;
    QObject parent;
    auto *const proxy = makeProxy(host, &parent);
    addErrors(host);
    const QRegularExpression extended(u"L o b b y"_s,
                                      QRegularExpression::ExtendedPatternSyntaxOption);
    QVERIFY(extended.match(u"Lobby"_s).hasMatch());
    proxy->setFilterRegularExpression(extended);
    QCOMPARE(shown(*proxy), QStringList());
}

void tst_SortFilterProxy::invalidPatternShowsNothing()
{
    TestHost host;
    QObject parent;
    auto *const proxy = makeProxy(host, &parent);
    addErrors(host);
    proxy->setFilterRegularExpression(u"(unfinished"_s);
    QCOMPARE(shown(*proxy), QStringList());
    host.invoke("monitorVolumeStatus", u"later"_s);
    QCOMPARE(shown(*proxy), QStringList());
    proxy->setFilterRegularExpression(u"lobby"_s);
    QCOMPARE(shown(*proxy), QStringList({u"3_st1/cam1"_s}));
}

void tst_SortFilterProxy::stationNarrowsTheList_data()
{
    QTest::addColumn<QString>("stationID");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("longer ids too")
        << u"st1"_s << QStringList({u"0_st10"_s, u"3_st1/cam1"_s, u"5_xst1"_s});
    QTest::newRow("one") << u"st10"_s << QStringList({u"0_st10"_s});
    QTest::newRow("middle of ids") << u"t2"_s << QStringList({u"1_st2"_s});
    QTest::newRow("camera ids are not stations") << u"cam1"_s << QStringList();
    QTest::newRow("upper case") << u"ST1"_s << QStringList();
    QTest::newRow("no pattern") << u"st."_s << QStringList();
    QTest::newRow("all") << QString() << All;
}

void tst_SortFilterProxy::stationNarrowsTheList()
{
    QFETCH(const QString, stationID);
    QFETCH(const QStringList, keys);
    TestHost host;
    QObject parent;
    auto *const proxy = makeProxy(host, &parent);
    const QAbstractItemModelTester tester(proxy);
    addErrors(host);
    call(proxy, "setFilterParentStationID", stationID);
    QCOMPARE(shown(*proxy), keys);
    call(proxy, "setFilterParentStationID", QString());
    QCOMPARE(shown(*proxy), All);
}

void tst_SortFilterProxy::filtersCombine()
{
    TestHost host;
    QObject parent;
    auto *const proxy = makeProxy(host, &parent);
    addErrors(host);
    call(proxy, "setErrorCategory", 1);
    call(proxy, "setFilterParentStationID", u"st1"_s);
    QCOMPARE(shown(*proxy), QStringList({u"0_st10"_s, u"5_xst1"_s}));
    proxy->setFilterRegularExpression(u"wing"_s);
    QCOMPARE(shown(*proxy), QStringList({u"0_st10"_s}));
    call(proxy, "setErrorCategory", 2);
    QCOMPARE(shown(*proxy), QStringList());
}

void tst_SortFilterProxy::filterFollowsARelabelledError()
{
    TestHost host;
    QObject parent;
    auto *const proxy = makeProxy(host, &parent);
    proxy->setFilterRegularExpression(u"vault"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Vault"_s, u"g1"_s);
    QCOMPARE(proxy->rowCount(), 1);
    host.invoke("monitorInsufficientRecordingDays", u"st1"_s, u"Attic"_s, u"g1"_s);
    QCOMPARE(proxy->rowCount(), 0);
}

void tst_SortFilterProxy::proxiesKeepTheirOwnSettings()
{
    TestHost host;
    QObject parent;
    auto *const cameras = makeProxy(host, &parent);
    auto *const station = makeProxy(host, &parent);
    auto *const text = makeProxy(host, &parent);
    auto *const all = makeProxy(host, &parent);
    call(cameras, "setErrorCategory", 2);
    call(station, "setFilterParentStationID", u"st2"_s);
    text->setFilterRegularExpression(u"volume"_s);
    addErrors(host);
    QCOMPARE(shown(*cameras), QStringList({u"3_st1/cam1"_s}));
    QCOMPARE(shown(*station), QStringList({u"1_st2"_s}));
    QCOMPARE(shown(*text), QStringList({u"5_xst1"_s}));
    QCOMPARE(shown(*all), All);
}

QTEST_GUILESS_MAIN(tst_SortFilterProxy)
#include "tst_SortFilterProxy.moc"
