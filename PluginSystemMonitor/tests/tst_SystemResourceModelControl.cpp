#include "SystemResourceModelControl.h"

#include "PrintedValue.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_SystemResourceModelControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newControlHoldsThreeBaseRows();
    void controlPassesItsParentOn();
    void modelBelongsToTheControl();
    void modelHasTheRoleNamesAlsoAfterStartingOver();

    void historyMovesOnByOne();
    void historyKeepsSixtySamples_data();
    void historyKeepsSixtySamples();
    void everySampleIsKeptAsItComes();
    void usageListTakesIntegersAndDoubles();

    void firstListLaysOutTheNetworkRows();
    void laterInterfacesGetNoRow();
    void emptyListLaysOutNothing();
    void interfaceNameIsWrittenAsItStands_data();
    void interfaceNameIsWrittenAsItStands();
    void furtherInterfaceNamesAreTexts();
    void entryThatIsNoMapIsAnInterfaceWithoutName();
    void withoutANetworkRowEveryInterfaceGetsANewRow();
    void bareRowIsNoInterface();
    void layoutAloneMovesNoHistory();
    void layoutLeavesTheCallersListAlone();

    void eachInterfaceMovesOnByAnEntryForEveryNetworkRow_data();
    void eachInterfaceMovesOnByAnEntryForEveryNetworkRow();
    void interfaceNamesAreMatchedExactly_data();
    void interfaceNamesAreMatchedExactly();
    void missingFiguresReadAsZero();
    void twoEntriesOfOneInterfaceBothCount();
    void unnamedInterfaceGoesToTheCpuRow_data();
    void unnamedInterfaceGoesToTheCpuRow();
    void fractionsOfNetworkUsageAreKept();

    void emptyModelIsFilledByTheNextSample();
    void startingOverEmptiesHistoriesAndLayout();
    void modelStaysConsistent();
};

namespace {

QVariantMap usage(const QVariant &interfaceName, const QVariant &percentage = 0,
                  const QVariant &bandwidth = 0)
{
    return {{u"networkInterface"_s, interfaceName},
            {u"networkPercentage"_s, percentage},
            {u"networkBandwidth"_s, bandwidth}};
}

const QString emptyCpuRow =
    u"type 0 title \"CPU usage\" subtitle \"\" threshold 90 bandwidth 0 history 0 x 60"_s;
const QString emptyMemoryRow =
    u"type 1 title \"Memory usage\" subtitle \"\" threshold 80 bandwidth 0 history 0 x 60"_s;
const QString emptyNetworkRow =
    u"type 2 title \"Network usage\" subtitle \"\" threshold 50 bandwidth 0 history 0 x 60"_s;
const QStringList emptyRows{emptyCpuRow, emptyMemoryRow, emptyNetworkRow};

/// A control with thresholds of 90, 80 and 50.
class Control : public SystemResourceModelControl
{
public:
    Control()
        : SystemResourceModelControl(90, 80, 50, nullptr)
    { }

    QStringList rows() const { return printedResources(*model()); }

    QVariant data(int row, int role) const { return model()->index(row, 0).data(role); }

    QString subtitle(int row) const
    {
        return printedValue(data(row, SystemResourceModelItem::SubtitleRole));
    }

    QVariantList history(int row) const
    {
        return data(row, SystemResourceModelItem::UsageListRole).toList();
    }

    /// The newest samples of a row, oldest first.
    QString newest(int row, int count) const
    {
        const QVariantList samples = history(row);
        return printedValue(samples.last(count));
    }

    QString bandwidth(int row) const
    {
        return printedValue(data(row, SystemResourceModelItem::BandwidthRole));
    }
};

} // namespace

void tst_SystemResourceModelControl::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_SystemResourceModelControl::newControlHoldsThreeBaseRows()
{
    QCOMPARE(Control().rows(), emptyRows);
}

void tst_SystemResourceModelControl::controlPassesItsParentOn()
{
    QObject parent;
    const auto *control = new SystemResourceModelControl(1, 2, 3, &parent);
    QCOMPARE(control->parent(), &parent);
}

void tst_SystemResourceModelControl::modelBelongsToTheControl()
{
    QPointer<QStandardItemModel> model;
    {
        const Control control;
        model = control.model();
        QCOMPARE(model->parent(), &control);
    }
    QVERIFY(!model);
}

void tst_SystemResourceModelControl::modelHasTheRoleNamesAlsoAfterStartingOver()
{
    Control control;
    QCOMPARE(control.model()->roleNames(), SystemResourceModelItem::roleNames());
    control.initialModelData();
    QCOMPARE(control.model()->roleNames(), SystemResourceModelItem::roleNames());
}

// Histories

void tst_SystemResourceModelControl::historyMovesOnByOne()
{
    Control control;
    control.updateUsage(10, 20, {usage(u"en0"_s, 30, 40)});
    QCOMPARE(
        control.rows(),
        QStringList({u"type 0 title \"CPU usage\" subtitle \"\" threshold 90 bandwidth 0 "
                     "history 0 x 59, 10 x 1"_s,
                     u"type 1 title \"Memory usage\" subtitle \"\" threshold 80 bandwidth 0 "
                     "history 0 x 59, 20 x 1"_s,
                     u"type 2 title \"Network usage\" subtitle \"en0\" threshold 50 bandwidth 40.0 "
                     "history 0 x 59, 30.0 x 1"_s}));
}

void tst_SystemResourceModelControl::historyKeepsSixtySamples_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<QVariantList>("history");
    QTest::newRow("59") << 59 << QVariantList(QVariantList{0} + QVariantList(59, 10));
    QTest::newRow("60") << 60 << QVariantList(60, 10);
    QTest::newRow("61") << 61 << QVariantList(60, 10);
    QTest::newRow("150") << 150 << QVariantList(60, 10);
}

void tst_SystemResourceModelControl::historyKeepsSixtySamples()
{
    QFETCH(const int, samples);
    QFETCH(const QVariantList, history);
    Control control;
    for (int i = 0; i < samples; ++i)
        control.updateUsage(10, 10, {});
    QCOMPARE(control.history(0), history);
    QCOMPARE(control.history(1), history);
}

void tst_SystemResourceModelControl::everySampleIsKeptAsItComes()
{
    Control control;
    for (const int cpu : {-100, 0, 99, 250})
        control.updateUsage(cpu, 7, {});
    QCOMPARE(control.newest(0, 5), u"[0, -100, 0, 99, 250]"_s);
    QCOMPARE(control.newest(1, 5), u"[0, 7, 7, 7, 7]"_s);
}

void tst_SystemResourceModelControl::usageListTakesIntegersAndDoubles()
{
    QStandardItem item;
    item.setData(QVariantList{1, 2}, SystemResourceModelItem::UsageListRole);
    updateUsageList<int>(&item, 3);
    updateUsageList<double>(&item, 4);
    QCOMPARE(printedValue(item.data(SystemResourceModelItem::UsageListRole)), u"[3, 4.0]"_s);
}

// Network rows

void tst_SystemResourceModelControl::firstListLaysOutTheNetworkRows()
{
    Control control;
    control.updateUsage(0, 0, {usage(u"en0"_s), usage(u"en1"_s), usage(u"en2"_s)});
    QCOMPARE(control.model()->rowCount(), 5);
    QCOMPARE(control.subtitle(2), u"\"en0\""_s);
    QCOMPARE(control.subtitle(3), u"\"en1\""_s);
    QCOMPARE(control.subtitle(4), u"\"en2\""_s);
    for (const int row : {2, 3, 4}) {
        QCOMPARE(control.data(row, SystemResourceModelItem::TypeRole), QVariant(2));
        QCOMPARE(control.data(row, SystemResourceModelItem::TitleRole),
                 QVariant(u"Network usage"_s));
        QCOMPARE(control.data(row, SystemResourceModelItem::ThresholdRole), QVariant(50));
        QCOMPARE(control.history(row).size(), 60);
    }
}

void tst_SystemResourceModelControl::laterInterfacesGetNoRow()
{
    Control control;
    control.updateUsage(0, 0, {usage(u"en0"_s), usage(u"en1"_s)});
    control.updateUsage(0, 0, {usage(u"en2"_s, 5)});
    QCOMPARE(control.model()->rowCount(), 4);
    QCOMPARE(control.subtitle(2), u"\"en0\""_s);
    QCOMPARE(control.subtitle(3), u"\"en1\""_s);
}

void tst_SystemResourceModelControl::emptyListLaysOutNothing()
{
    Control control;
    control.updateUsage(10, 20, {});
    QCOMPARE(control.rows().at(2), emptyNetworkRow);
    // The layout is still to come.
    control.updateUsage(10, 20, {usage(u"en0"_s), usage(u"en1"_s)});
    QCOMPARE(control.model()->rowCount(), 4);
}

void tst_SystemResourceModelControl::interfaceNameIsWrittenAsItStands_data()
{
    QTest::addColumn<QVariantMap>("entry");
    QTest::addColumn<QString>("subtitle");
    QTest::newRow("text") << usage(u"en0"_s) << u"\"en0\""_s;
    QTest::newRow("number") << usage(7) << u"7"_s;
    QTest::newRow("missing") << QVariantMap() << u"invalid"_s;
}

void tst_SystemResourceModelControl::interfaceNameIsWrittenAsItStands()
{
    QFETCH(const QVariantMap, entry);
    QFETCH(const QString, subtitle);
    Control control;
    control.updateNetworkModalData({entry});
    QCOMPARE(control.subtitle(2), subtitle);
}

void tst_SystemResourceModelControl::furtherInterfaceNamesAreTexts()
{
    Control control;
    control.updateNetworkModalData({usage(u"en0"_s), usage(7), QVariantMap()});
    QCOMPARE(control.subtitle(3), u"\"7\""_s);
    QCOMPARE(control.subtitle(4), u"\"\""_s);
}

void tst_SystemResourceModelControl::entryThatIsNoMapIsAnInterfaceWithoutName()
{
    Control control;
    control.updateNetworkModalData({5, u"en1"_s});
    QCOMPARE(control.subtitle(2), u"invalid"_s);
    QCOMPARE(control.subtitle(3), u"\"\""_s);
}

void tst_SystemResourceModelControl::withoutANetworkRowEveryInterfaceGetsANewRow()
{
    Control control;
    control.model()->removeRow(2);
    control.updateUsage(0, 0, {usage(u"en0"_s), usage(u"en1"_s)});
    QCOMPARE(control.model()->rowCount(), 4);
    QCOMPARE(control.subtitle(2), u"\"en0\""_s);
    QCOMPARE(control.subtitle(3), u"\"en1\""_s);
}

void tst_SystemResourceModelControl::bareRowIsNoInterface()
{
    Control control;
    control.updateNetworkModalData({usage(u"en0"_s)});
    control.model()->insertRow(3);
    control.updateUsage(0, 0, {usage(u"en1"_s, 30, 40), usage(u"en0"_s, 50, 60)});
    QCOMPARE(control.newest(2, 1), u"[50.0]"_s);
    QCOMPARE(control.bandwidth(2), u"60.0"_s);
}

void tst_SystemResourceModelControl::layoutAloneMovesNoHistory()
{
    Control control;
    control.updateNetworkModalData({usage(u"en0"_s, 12, 34), usage(u"en1"_s, 56, 78)});
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(control.history(row), QVariantList(60, 0));
        QCOMPARE(control.bandwidth(row), u"0"_s);
    }
}

void tst_SystemResourceModelControl::layoutLeavesTheCallersListAlone()
{
    Control control;
    const QVariantList list{usage(u"en0"_s), usage(u"en1"_s)};
    control.updateUsage(0, 0, list);
    QCOMPARE(list.size(), 2);
}

// Network usage

void tst_SystemResourceModelControl::eachInterfaceMovesOnByAnEntryForEveryNetworkRow_data()
{
    QTest::addColumn<int>("interfaces");
    for (const int interfaces : {1, 2, 3, 5})
        QTest::addRow("%d", interfaces) << interfaces;
}

void tst_SystemResourceModelControl::eachInterfaceMovesOnByAnEntryForEveryNetworkRow()
{
    QFETCH(const int, interfaces);
    QVariantList list;
    for (int i = 0; i < interfaces; ++i)
        list.append(usage(QString::number(i), 10 + i, 100 + i));
    Control control;
    control.updateUsage(1, 2, list);

    QCOMPARE(control.newest(0, 2), u"[0, 1]"_s);
    QCOMPARE(control.newest(1, 2), u"[0, 2]"_s);
    for (int i = 0; i < interfaces; ++i) {
        const QVariantList expected =
            QVariantList(60 - interfaces, 0) + QVariantList(interfaces, double(10 + i));
        QCOMPARE(printedValue(control.history(2 + i)), printedValue(expected));
        QCOMPARE(control.bandwidth(2 + i), printedValue(double(100 + i)));
    }
}

void tst_SystemResourceModelControl::interfaceNamesAreMatchedExactly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("same") << u"en0"_s << true;
    QTest::newRow("other case") << u"EN0"_s << false;
    QTest::newRow("beginning") << u"en"_s << false;
    QTest::newRow("longer") << u"en01"_s << false;
    QTest::newRow("pattern") << u"en."_s << false;
}

void tst_SystemResourceModelControl::interfaceNamesAreMatchedExactly()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isFound);
    Control control;
    control.updateNetworkModalData({usage(u"en0"_s)});
    control.updateUsage(0, 0, {usage(name, 30, 40)});
    QCOMPARE(control.newest(2, 1), isFound ? u"[30.0]"_s : u"[0]"_s);
    QCOMPARE(control.bandwidth(2), isFound ? u"40.0"_s : u"0"_s);
}

void tst_SystemResourceModelControl::missingFiguresReadAsZero()
{
    Control control;
    control.updateUsage(0, 0, {usage(u"en0"_s, 30, 40)});
    control.updateUsage(0, 0, {QVariantMap{{u"networkInterface"_s, u"en0"_s}}});
    QCOMPARE(control.newest(2, 2), u"[30.0, 0.0]"_s);
    QCOMPARE(control.bandwidth(2), u"0.0"_s);
}

void tst_SystemResourceModelControl::twoEntriesOfOneInterfaceBothCount()
{
    Control control;
    control.updateNetworkModalData({usage(u"en0"_s)});
    control.updateUsage(0, 0, {usage(u"en0"_s, 1, 10), usage(u"en0"_s, 2, 20)});
    QCOMPARE(control.newest(2, 3), u"[0, 1.0, 2.0]"_s);
    QCOMPARE(control.bandwidth(2), u"20.0"_s);
}

void tst_SystemResourceModelControl::unnamedInterfaceGoesToTheCpuRow_data()
{
    QTest::addColumn<QVariantMap>("entry");
    QTest::newRow("empty") << usage(QString(), 30, 40);
    QTest::newRow("missing") << QVariantMap{{u"networkPercentage"_s, 30},
                                            {u"networkBandwidth"_s, 40}};
}

void tst_SystemResourceModelControl::unnamedInterfaceGoesToTheCpuRow()
{
    QFETCH(const QVariantMap, entry);
    Control control;
    control.updateUsage(10, 20, {entry});
    QCOMPARE(control.newest(0, 3), u"[0, 10, 30.0]"_s);
    QCOMPARE(control.bandwidth(0), u"40.0"_s);
    QCOMPARE(control.newest(1, 2), u"[0, 20]"_s);
    QCOMPARE(control.newest(2, 1), u"[0]"_s);
    QCOMPARE(control.bandwidth(2), u"0"_s);
}

void tst_SystemResourceModelControl::fractionsOfNetworkUsageAreKept()
{
    Control control;
    control.updateUsage(0, 0, {usage(u"en0"_s, 49.75, u"1234.5"_s)});
    QCOMPARE(control.newest(2, 1), u"[49.75]"_s);
    QCOMPARE(control.bandwidth(2), u"1234.5"_s);
}

// Starting over

void tst_SystemResourceModelControl::emptyModelIsFilledByTheNextSample()
{
    Control control;
    control.updateUsage(1, 1, {usage(u"en0"_s), usage(u"en1"_s)});
    control.model()->removeRows(0, 4);
    control.updateUsage(10, 20, {usage(u"en5"_s, 30)});
    QCOMPARE(control.model()->rowCount(), 3);
    QCOMPARE(control.newest(0, 2), u"[0, 10]"_s);
    QCOMPARE(control.newest(1, 2), u"[0, 20]"_s);
    QCOMPARE(control.subtitle(2), u"\"en5\""_s);
    QCOMPARE(control.newest(2, 2), u"[0, 30.0]"_s);
}

void tst_SystemResourceModelControl::startingOverEmptiesHistoriesAndLayout()
{
    Control control;
    control.updateUsage(10, 20, {usage(u"en0"_s, 30, 40), usage(u"en1"_s, 50, 60)});
    QVERIFY(control.initialModelData());
    QCOMPARE(control.rows(), emptyRows);
    // The next list lays the network rows out anew.
    control.updateUsage(0, 0, {usage(u"en7"_s), usage(u"en8"_s), usage(u"en9"_s)});
    QCOMPARE(control.model()->rowCount(), 5);
    QCOMPARE(control.subtitle(2), u"\"en7\""_s);
}

void tst_SystemResourceModelControl::modelStaysConsistent()
{
    Control control;
    const QAbstractItemModelTester tester(control.model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    control.updateUsage(1, 2, {usage(u"en0"_s, 3), usage(u"en1"_s, 4)});
    control.updateUsage(1, 2, {usage(u"en0"_s, 3), usage(u"en2"_s, 4)});
    control.initialModelData();
    control.updateUsage(1, 2, {});
}

QTEST_GUILESS_MAIN(tst_SystemResourceModelControl)
#include "tst_SystemResourceModelControl.moc"
