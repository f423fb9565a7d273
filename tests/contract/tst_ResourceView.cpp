#include "ModelRoles.h"
#include "TestHost.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The rows of the focus station's resource model and their histories.
class tst_ResourceView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void modelNamesSixRolesAndNoOther();
    void modelStartsWithThreeEmptyHistories();
    void thresholdsAreThoseOfTheEnvironment();
    void reportIsPushedIntoEveryRow();
    void historyKeepsTheLastSixtyReports();
    void firstListLaysTheNetworkRowsOut();
    void laterInterfacesGetNoRow();
    void emptyListLeavesTheLayoutForLater();
    void eachNetworkRowPassesOverTheWholeList_data();
    void eachNetworkRowPassesOverTheWholeList();
    void interfaceThatIsNotReportedStandsStill();
    void interfaceThatIsListedTwiceGoesToItsFirstRow();
    void interfaceWithoutNameGoesToTheProcessorRow_data();
    void interfaceWithoutNameGoesToTheProcessorRow();
    void interfaceNameIsComparedWithCase();
    void namesAreTakenOverAsTheyStand();
    void missingFiguresReadAsZero();
    void fractionsAreKept();
    void emptiedModelIsRebuilt();
    void removedNetworkRowsAreLaidOutAtTheNextFocus();
    void everyInterfaceGetsARowWhereNoneIs();
    void newFocusEmptiesTheHistories();
};

namespace {

QVariant interface(const QString &name, const QVariant &percentage, const QVariant &bandwidth)
{
    return QVariantMap{{u"networkInterface"_s, name},
                       {u"networkPercentage"_s, percentage},
                       {u"networkBandwidth"_s, bandwidth}};
}

// Reports for the station in focus, which is the one without an id at first.
void report(TestHost &host, int cpu, int memory, const QVariantList &networks = {})
{
    host.event(u"SystemResChanged"_s, QVariantMap{{u"cpuPercentage"_s, cpu},
                                                  {u"memPercentage"_s, memory},
                                                  {u"networkUsageList"_s, networks}});
}

QString processor(const QString &history, const QString &bandwidth = u"0"_s)
{
    return uR"(type 0 title "CPU usage" subtitle "" threshold 90 bandwidth %1 history %2)"_s.arg(
        bandwidth, history);
}

QString memory(const QString &history)
{
    return uR"(type 1 title "Memory usage" subtitle "" threshold 90 bandwidth 0 history %1)"_s.arg(
        history);
}

QString network(const QString &subtitle, const QString &history, const QString &bandwidth = u"0"_s)
{
    return uR"(type 2 title "Network usage" subtitle %1 threshold 50 bandwidth %2 history %3)"_s
        .arg(subtitle, bandwidth, history);
}

const QString Empty = u"0 x 60"_s;

} // namespace

void tst_ResourceView::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_ResourceView::modelNamesSixRolesAndNoOther()
{
    TestHost host;
    const QHash<int, QByteArray> roles{
        {257, "typeRole"},      {258, "titleRole"},     {259, "subtitleRole"},
        {260, "thresholdRole"}, {261, "usageListRole"}, {262, "bandwidthRole"},
    };
    QCOMPARE(host.resources()->roleNames(), roles);
}

void tst_ResourceView::modelStartsWithThreeEmptyHistories()
{
    TestHost host;
    QCOMPARE(host.resourceRows(),
             QStringList({processor(Empty), memory(Empty), network(u"\"\""_s, Empty)}));
    QCOMPARE(host.resources()->columnCount(), 1);
    QCOMPARE(host.resources()->index(0, 0).data(ResourceRole::UsageList).metaType(),
             QMetaType::fromType<QVariantList>());
}

void tst_ResourceView::thresholdsAreThoseOfTheEnvironment()
{
    TestHost host(TestHost::Paired, {"11", "22", "33"});
    report(host, 1, 2, {interface(u"en0"_s, 1, 2), interface(u"en1"_s, 3, 4)});
    const int thresholds[]{11, 22, 33, 33};
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(host.resources()->index(row, 0).data(ResourceRole::Threshold),
                 QVariant(thresholds[row]));
    }
}

void tst_ResourceView::reportIsPushedIntoEveryRow()
{
    TestHost host;
    const QAbstractItemModelTester tester(host.resources());
    report(host, 10, 20, {interface(u"en0"_s, 12.5, 1000.0)});
    QCOMPARE(host.resourceRows(),
             QStringList({processor(u"0 x 59, 10 x 1"_s), memory(u"0 x 59, 20 x 1"_s),
                          network(u"\"en0\""_s, u"0 x 59, 12.5 x 1"_s, u"1000.0"_s)}));
    report(host, -100, 0, {interface(u"en0"_s, 7, 5)});
    QCOMPARE(
        host.resourceRows(),
        QStringList({processor(u"0 x 58, 10 x 1, -100 x 1"_s), memory(u"0 x 58, 20 x 1, 0 x 1"_s),
                     network(u"\"en0\""_s, u"0 x 58, 12.5 x 1, 7.0 x 1"_s, u"5.0"_s)}));
}

void tst_ResourceView::historyKeepsTheLastSixtyReports()
{
    TestHost host;
    for (int i = 0; i < 59; ++i)
        report(host, 10, 1);
    QCOMPARE(host.resourceRows().constFirst(), processor(u"0 x 1, 10 x 59"_s));
    report(host, 10, 1);
    QCOMPARE(host.resourceRows().constFirst(), processor(u"10 x 60"_s));
    report(host, 11, 1);
    QCOMPARE(host.resourceRows().constFirst(), processor(u"10 x 59, 11 x 1"_s));
}

void tst_ResourceView::firstListLaysTheNetworkRowsOut()
{
    TestHost host;
    const QAbstractItemModelTester tester(host.resources());
    report(host, 1, 2, {interface(u"en0"_s, 12.5, 1000.0), interface(u"en1"_s, 3.5, 10.0)});
    QCOMPARE(host.resourceRows().mid(2),
             QStringList({network(u"\"en0\""_s, u"0 x 58, 12.5 x 2"_s, u"1000.0"_s),
                          network(u"\"en1\""_s, u"0 x 58, 3.5 x 2"_s, u"10.0"_s)}));
}

void tst_ResourceView::laterInterfacesGetNoRow()
{
    TestHost host;
    report(host, 1, 2, {interface(u"en0"_s, 12.5, 1000.0)});
    report(host, 1, 2, {interface(u"en1"_s, 3.5, 10.0), interface(u"en0"_s, 13.5, 1001.0)});
    QCOMPARE(host.resourceRows().mid(2),
             QStringList({network(u"\"en0\""_s, u"0 x 58, 12.5 x 1, 13.5 x 1"_s, u"1001.0"_s)}));
}

void tst_ResourceView::emptyListLeavesTheLayoutForLater()
{
    TestHost host;
    report(host, 1, 2);
    QCOMPARE(host.resourceRows().mid(2), QStringList({network(u"\"\""_s, Empty)}));
    report(host, 1, 2, {interface(u"en0"_s, 1.5, 2.5)});
    QCOMPARE(host.resourceRows().mid(2),
             QStringList({network(u"\"en0\""_s, u"0 x 59, 1.5 x 1"_s, u"2.5"_s)}));
    report(host, 1, 2);
    QCOMPARE(host.resourceRows().mid(2),
             QStringList({network(u"\"en0\""_s, u"0 x 59, 1.5 x 1"_s, u"2.5"_s)}));
}

void tst_ResourceView::eachNetworkRowPassesOverTheWholeList_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 2, 3, 7, 60, 61})
        QTest::addRow("%d", count) << count;
}

void tst_ResourceView::eachNetworkRowPassesOverTheWholeList()
{
    QFETCH(const int, count);
    TestHost host;
    QVariantList networks;
    QStringList rows;
    const int pushes = qMin(count, 60);
    const QString zeros = pushes < 60 ? u"0 x %1, "_s.arg(60 - pushes) : QString();
    for (int i = 0; i < count; ++i) {
        networks.append(interface(u"en%1"_s.arg(i), i + 0.5, 1));
        rows.append(
            network(u"\"en%1\""_s.arg(i), zeros + u"%1.5 x %2"_s.arg(i).arg(pushes), u"1.0"_s));
    }
    report(host, 1, 2, networks);
    QCOMPARE(host.resourceRows().mid(2), rows);
    QCOMPARE(host.resourceRows().constFirst(), processor(u"0 x 59, 1 x 1"_s));
}

void tst_ResourceView::interfaceThatIsNotReportedStandsStill()
{
    TestHost host;
    report(host, 1, 2,
           {interface(u"a"_s, 1.5, 1), interface(u"b"_s, 2.5, 1), interface(u"c"_s, 3.5, 1)});
    report(host, 1, 2, {interface(u"b"_s, 9.5, 2)});
    QCOMPARE(host.resourceRows().mid(2),
             QStringList({network(u"\"a\""_s, u"0 x 57, 1.5 x 3"_s, u"1.0"_s),
                          network(u"\"b\""_s, u"0 x 54, 2.5 x 3, 9.5 x 3"_s, u"2.0"_s),
                          network(u"\"c\""_s, u"0 x 57, 3.5 x 3"_s, u"1.0"_s)}));
}

void tst_ResourceView::interfaceThatIsListedTwiceGoesToItsFirstRow()
{
    TestHost host;
    report(host, 1, 2, {interface(u"en0"_s, 1.5, 1), interface(u"en0"_s, 2.5, 2)});
    QCOMPARE(host.resourceRows().mid(2),
             QStringList(
                 {network(u"\"en0\""_s, u"0 x 56, 1.5 x 1, 2.5 x 1, 1.5 x 1, 2.5 x 1"_s, u"2.0"_s),
                  network(u"\"en0\""_s, Empty)}));
}

void tst_ResourceView::interfaceWithoutNameGoesToTheProcessorRow_data()
{
    QTest::addColumn<QVariant>("entry");
    QTest::addColumn<QString>("subtitle");
    QTest::newRow("empty name") << interface(QString(), 12.5, 1000.0) << u"\"\""_s;
    QTest::newRow("no name") << QVariant(
        QVariantMap{{u"networkPercentage"_s, 12.5}, {u"networkBandwidth"_s, 1000.0}})
                             << u"invalid"_s;
}

void tst_ResourceView::interfaceWithoutNameGoesToTheProcessorRow()
{
    QFETCH(const QVariant, entry);
    QFETCH(const QString, subtitle);
    TestHost host;
    report(host, 10, 20, {entry});
    QCOMPARE(host.resourceRows(),
             QStringList({processor(u"0 x 58, 10 x 1, 12.5 x 1"_s, u"1000.0"_s),
                          memory(u"0 x 59, 20 x 1"_s), network(subtitle, Empty)}));
}

void tst_ResourceView::interfaceNameIsComparedWithCase()
{
    TestHost host;
    report(host, 1, 2, {interface(u"en0"_s, 1.5, 1)});
    const QStringList rows = host.resourceRows().mid(2);
    report(host, 1, 2,
           {interface(u"EN0"_s, 9.5, 9), interface(u"en"_s, 9.5, 9), interface(u"en00"_s, 9.5, 9)});
    QCOMPARE(host.resourceRows().mid(2), rows);
}

// The first network row gets the value, the further ones its text.
void tst_ResourceView::namesAreTakenOverAsTheyStand()
{
    TestHost host;
    report(host, 1, 2,
           {QVariantMap{{u"networkInterface"_s, 5}}, QVariantMap{{u"networkInterface"_s, 6}}});
    QCOMPARE(host.resources()->index(2, 0).data(ResourceRole::Subtitle), QVariant(5));
    QCOMPARE(host.resources()->index(3, 0).data(ResourceRole::Subtitle), QVariant(u"6"_s));
}

void tst_ResourceView::missingFiguresReadAsZero()
{
    TestHost host;
    report(host, 10, 20, {interface(u"en0"_s, 12.5, 1000.0)});
    host.event(u"SystemResChanged"_s,
               QVariantMap{{u"networkUsageList"_s,
                            QVariantList{QVariantMap{{u"networkInterface"_s, u"en0"_s}}}}});
    QCOMPARE(host.resourceRows(),
             QStringList({processor(u"0 x 58, 10 x 1, 0 x 1"_s), memory(u"0 x 58, 20 x 1, 0 x 1"_s),
                          network(u"\"en0\""_s, u"0 x 58, 12.5 x 1, 0.0 x 1"_s, u"0.0"_s)}));
}

void tst_ResourceView::fractionsAreKept()
{
    TestHost host;
    report(host, 1, 2, {interface(u"en0"_s, 49.625, 0.125)});
    QCOMPARE(host.resourceRows().constLast(),
             network(u"\"en0\""_s, u"0 x 59, 49.625 x 1"_s, u"0.125"_s));
}

void tst_ResourceView::emptiedModelIsRebuilt()
{
    TestHost host;
    report(host, 1, 2, {interface(u"en0"_s, 1.5, 1), interface(u"en1"_s, 2.5, 1)});
    host.resources()->removeRows(0, host.resources()->rowCount());
    report(host, 10, 20, {interface(u"en2"_s, 3.5, 1)});
    QCOMPARE(host.resourceRows(),
             QStringList({processor(u"0 x 59, 10 x 1"_s), memory(u"0 x 59, 20 x 1"_s),
                          network(u"\"en2\""_s, u"0 x 59, 3.5 x 1"_s, u"1.0"_s)}));
}

void tst_ResourceView::removedNetworkRowsAreLaidOutAtTheNextFocus()
{
    TestHost host;
    report(host, 1, 2, {interface(u"en0"_s, 1.5, 1)});
    host.resources()->removeRow(2);
    report(host, 1, 2, {interface(u"en0"_s, 1.5, 1)});
    QCOMPARE(host.resources()->rowCount(), 2);
    host.object()->setProperty("focusStationResource", u"st1"_s);
    QCOMPARE(host.resources()->rowCount(), 3);
}

void tst_ResourceView::everyInterfaceGetsARowWhereNoneIs()
{
    TestHost host;
    host.resources()->removeRow(2);
    report(host, 1, 2, {interface(u"en0"_s, 1.5, 1), interface(u"en1"_s, 2.5, 1)});
    QCOMPARE(host.resourceRows().mid(2),
             QStringList({network(u"\"en0\""_s, u"0 x 58, 1.5 x 2"_s, u"1.0"_s),
                          network(u"\"en1\""_s, u"0 x 58, 2.5 x 2"_s, u"1.0"_s)}));
}

void tst_ResourceView::newFocusEmptiesTheHistories()
{
    TestHost host;
    QObject *const model = host.resources();
    report(host, 10, 20, {interface(u"en0"_s, 1.5, 1), interface(u"en1"_s, 2.5, 1)});
    host.object()->setProperty("focusStationResource", u"st1"_s);
    QCOMPARE(host.resources(), model);
    QCOMPARE(host.resourceRows(),
             QStringList({processor(Empty), memory(Empty), network(u"\"\""_s, Empty)}));
    QCOMPARE(host.resources()->roleNames().size(), 6);
}

QTEST_GUILESS_MAIN(tst_ResourceView)
#include "tst_ResourceView.moc"
