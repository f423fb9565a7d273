#include "CollectedTrace.h"
#include "FailingAllocation.h"
#include "SystemErrorModel.h"
#include "SystemResourceModelControl.h"
#include "TestedPlugin.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>
#include <new>

using namespace Qt::Literals::StringLiterals;

/// What happens when an object that the plug-in creates finds no memory.
class tst_PluginSystemMonitor_OutOfMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void rowIsNull();
    void controlTellsThatItsModelFailed();
    void controlKeepsTheRowsMadeBefore_data();
    void controlKeepsTheRowsMadeBefore();
    void startingOverTellsThatARowFailed_data();
    void startingOverTellsThatARowFailed();
    void failedStartLaysNoNetworkRowsOutAnew();
    void networkRowThatFailsIsPassedOver_data();
    void networkRowThatFailsIsPassedOver();

    void initialisationFailsWithTheControl_data();
    void initialisationFailsWithTheControl();
    void initialisationFailsWithTheMonitor();
    void initialisationFailsWithTheErrorList();
    void initialisationGoesOnWithoutARow();
    void errorListIsNull();
};

namespace {

using Kind = FailingAllocation::Kind;

QVariantMap usage(const QString &interfaceName)
{
    return {{u"networkInterface"_s, interfaceName}};
}

QStringList subtitles(const QAbstractItemModel *model)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, 0).data(SystemResourceModelItem::SubtitleRole).toString());
    return texts;
}

const QString failedRow = u"2 initialModelData, call SystemResourceModelItem create failed"_s;

// How many allocations of a kind an operation makes, from its second run on.
template <typename Operation> int allocationsOf(Kind kind, Operation operation)
{
    operation();
    const int before = FailingAllocation::counted(kind);
    operation();
    return FailingAllocation::counted(kind) - before;
}

// What Init() does before it creates the monitor.
void createControl()
{
    QObject parent;
    QSharedPointer<SystemResourceModelControl> control;
    control.reset(new SystemResourceModelControl(90, 90, 50, &parent));
}

} // namespace

void tst_PluginSystemMonitor_OutOfMemory::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

// The resource model

void tst_PluginSystemMonitor_OutOfMemory::rowIsNull()
{
    const FailingAllocation failure(Kind::Nothrow, 1);
    const std::unique_ptr<SystemResourceModelItem> item(SystemResourceModelItem::create(
        SystemResourceModelItem::CpuType, u"Title"_s, u"Subtitle"_s, 90));
    QVERIFY(!item);
    QVERIFY(FailingAllocation::happened());
}

void tst_PluginSystemMonitor_OutOfMemory::controlTellsThatItsModelFailed()
{
    const CollectedTrace trace;
    // The control's own private data is the first.
    const FailingAllocation failure(Kind::Throwing, 2);
    bool threw = false;
    try {
        const SystemResourceModelControl control(90, 90, 50, nullptr);
    } catch (const std::bad_alloc &) {
        threw = true;
    }
    QVERIFY(threw);
    QCOMPARE(trace.lines(),
             QStringList{u"2 SystemResourceModelControl, create QStandardItemModel failed"_s});
}

void tst_PluginSystemMonitor_OutOfMemory::controlKeepsTheRowsMadeBefore_data()
{
    QTest::addColumn<int>("failingRow");
    for (const int row : {0, 1, 2})
        QTest::addRow("row %d", row) << row;
}

void tst_PluginSystemMonitor_OutOfMemory::controlKeepsTheRowsMadeBefore()
{
    QFETCH(const int, failingRow);
    const CollectedTrace trace;
    const FailingAllocation failure(Kind::Nothrow, failingRow + 1);
    const SystemResourceModelControl control(90, 90, 50, nullptr);
    QVERIFY(FailingAllocation::happened());
    QCOMPARE(control.model()->rowCount(), failingRow);
    QCOMPARE(trace.lines(), QStringList{failedRow});
}

void tst_PluginSystemMonitor_OutOfMemory::startingOverTellsThatARowFailed_data()
{
    controlKeepsTheRowsMadeBefore_data();
}

void tst_PluginSystemMonitor_OutOfMemory::startingOverTellsThatARowFailed()
{
    QFETCH(const int, failingRow);
    SystemResourceModelControl control(90, 90, 50, nullptr);
    const CollectedTrace trace;
    {
        const FailingAllocation failure(Kind::Nothrow, failingRow + 1);
        QVERIFY(!control.initialModelData());
    }
    QCOMPARE(control.model()->rowCount(), failingRow);
    QCOMPARE(trace.lines(), QStringList{failedRow});
    QVERIFY(control.initialModelData());
    QCOMPARE(control.model()->rowCount(), 3);
}

void tst_PluginSystemMonitor_OutOfMemory::failedStartLaysNoNetworkRowsOutAnew()
{
    SystemResourceModelControl control(90, 90, 50, nullptr);
    control.updateNetworkModalData({usage(u"en0"_s)});
    {
        const FailingAllocation failure(Kind::Nothrow, 3);
        QVERIFY(!control.initialModelData());
    }
    control.updateNetworkModalData({usage(u"en0"_s), usage(u"en1"_s)});
    QCOMPARE(control.model()->rowCount(), 2);
}

void tst_PluginSystemMonitor_OutOfMemory::networkRowThatFailsIsPassedOver_data()
{
    QTest::addColumn<int>("failing");
    QTest::addColumn<QStringList>("interfaces");
    // The first interface takes the row that is there.
    QTest::newRow("second") << 1 << QStringList{u"en0"_s, u"en2"_s, u"en3"_s};
    QTest::newRow("third") << 2 << QStringList{u"en0"_s, u"en1"_s, u"en3"_s};
    QTest::newRow("fourth") << 3 << QStringList{u"en0"_s, u"en1"_s, u"en2"_s};
}

void tst_PluginSystemMonitor_OutOfMemory::networkRowThatFailsIsPassedOver()
{
    QFETCH(const int, failing);
    QFETCH(const QStringList, interfaces);
    const QVariantList list{usage(u"en0"_s), usage(u"en1"_s), usage(u"en2"_s), usage(u"en3"_s)};
    SystemResourceModelControl control(90, 90, 50, nullptr);
    const CollectedTrace trace;
    {
        const FailingAllocation failure(Kind::Nothrow, failing);
        control.updateUsage(1, 2, list);
    }
    QCOMPARE(
        trace.lines(),
        QStringList{u"2 updateNetworkModalData, call SystemResourceModelItem create failed"_s});
    QCOMPARE(subtitles(control.model()).mid(2), interfaces);
    // The layout is done all the same.
    control.updateUsage(1, 2, list);
    QCOMPARE(subtitles(control.model()).mid(2), interfaces);
}

// The plug-in

void tst_PluginSystemMonitor_OutOfMemory::initialisationFailsWithTheControl_data()
{
    QTest::addColumn<int>("failing");
    QTest::addColumn<QStringList>("lines");
    const QString control = u"2 Init, create SystemResourceModelControl failed"_s;
    const QString model = u"2 SystemResourceModelControl, create QStandardItemModel failed"_s;
    QTest::newRow("control") << 1 << QStringList{control};
    QTest::newRow("its private data") << 2 << QStringList{control};
    QTest::newRow("its model") << 3 << QStringList{model, control};
}

void tst_PluginSystemMonitor_OutOfMemory::initialisationFailsWithTheControl()
{
    QFETCH(const int, failing);
    QFETCH(const QStringList, lines);
    TestedPlugin plugin;
    const CollectedTrace trace;
    {
        const FailingAllocation failure(Kind::Throwing, failing);
        QVERIFY(!plugin.InitialPluginBase(nullptr, nullptr, nullptr));
    }
    QCOMPARE(trace.lines(),
             QStringList{u"5 Init, Enter"_s} + lines + QStringList{u"5 Init, Leave"_s});
    QVERIFY(!plugin.resourceModelControl);
    QVERIFY(!plugin.resourceMonitor);
    QCOMPARE(plugin.getSystemResourceModel(), nullptr);
    QCOMPARE(plugin.getSystemErrorModel(), nullptr);
    QCOMPARE(plugin.children(), QObjectList());
}

void tst_PluginSystemMonitor_OutOfMemory::initialisationFailsWithTheMonitor()
{
    const int before = allocationsOf(Kind::Throwing, createControl);
    TestedPlugin plugin;
    const CollectedTrace trace;
    {
        const FailingAllocation failure(Kind::Throwing, before + 1);
        QVERIFY(!plugin.Init(nullptr));
    }
    QCOMPARE(trace.lines(),
             QStringList({u"5 Init, Enter"_s, u"2 Init, Create SystemResourceMonitor failed"_s,
                          u"5 Init, Leave"_s}));
    // What was created before stays.
    QVERIFY(plugin.resourceModelControl);
    QCOMPARE(plugin.resourceModelControl->model()->rowCount(), 3);
    QVERIFY(!plugin.resourceMonitor);
    QCOMPARE(plugin.getSystemErrorModel(), nullptr);
}

void tst_PluginSystemMonitor_OutOfMemory::initialisationFailsWithTheErrorList()
{
    const int all = allocationsOf(Kind::Nothrow, [] { TestedPlugin().Init(nullptr); });
    TestedPlugin plugin;
    const CollectedTrace trace;
    {
        // The list is the last.
        const FailingAllocation failure(Kind::Nothrow, all);
        QVERIFY(!plugin.Init(nullptr));
        QVERIFY(FailingAllocation::happened());
    }
    QCOMPARE(trace.lines(), QStringList({u"5 Init, Enter"_s, u"5 Init, Leave"_s}));
    QCOMPARE(plugin.getSystemErrorModel(), nullptr);
    QVERIFY(plugin.resourceModelControl);
    QVERIFY(plugin.resourceMonitor);
}

void tst_PluginSystemMonitor_OutOfMemory::initialisationGoesOnWithoutARow()
{
    TestedPlugin plugin;
    const CollectedTrace trace(TraceLog::ErrorLevel);
    {
        const FailingAllocation failure(Kind::Nothrow, 2);
        QVERIFY(plugin.Init(nullptr));
    }
    QCOMPARE(trace.lines(), QStringList{failedRow});
    QCOMPARE(plugin.resourceModelControl->model()->rowCount(), 1);
    QVERIFY(plugin.getSystemErrorModel());
}

void tst_PluginSystemMonitor_OutOfMemory::errorListIsNull()
{
    TestedPlugin plugin;
    const CollectedTrace trace;
    {
        const FailingAllocation failure(Kind::Nothrow, 1);
        QVERIFY(!plugin.createErrorListModel());
    }
    QCOMPARE(plugin.errorModel, nullptr);
    QCOMPARE(trace.questions().size(), 0);
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_OutOfMemory)
#include "tst_PluginSystemMonitor_OutOfMemory.moc"
