#include "SystemErrorSortFilterModel.h"

#include "PrintedValue.h"
#include "SystemErrorModel.h"

#include <QAbstractItemModelTester>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

class tst_SystemErrorSortFilterModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void classListsItsTwoSetters();
    void parentIsOptional();

    void newestErrorComesFirst();
    void newerErrorAppendedLaterComesFirst();
    void olderErrorAppendedLaterTakesItsPlace();
    void equalTimesKeepTheOrderOfTheList();
    void missingTimeIsTheOldest();
    void timesAreComparedAsWideIntegers();
    void sortRoleOfTheBaseClassIsIgnored();
    void orderHoldsWhicheverComesFirstErrorsOrProxy();

    void maskShowsItsCategories_data();
    void maskShowsItsCategories();
    void maskIsAppliedAtOnce();

    void textIsSearchedInNameAndOrigin_data();
    void textIsSearchedInNameAndOrigin();
    void textFilterIgnoresCaseAtFirst();
    void textFilterFollowsTheCaseSetting();
    void emptyTextShowsEverything();
    void textIsARegularExpression();
    void fixedTextIsTakenLiterally();
    void textMayBeAWildcardPattern();
    void optionsOfTheExpressionAreDropped_data();
    void optionsOfTheExpressionAreDropped();
    void caseOptionOfTheExpressionBecomesTheCaseSetting();
    void invalidExpressionShowsNothingAndPrintsNothing();
    void relabelledErrorIsFilteredAnew();

    void stationFilterIsContainment_data();
    void stationFilterIsContainment();
    void stationFilterIgnoresTheCaseSetting();
    void emptyStationFilterShowsEveryStationAgain();
    void filtersApplyTogether();

    void proxiesOverOneListAreIndependent();
    void proxyFollowsTheSource();
    void proxyWithoutASourceIsEmpty();
};

namespace {

constexpr auto QtTestMode = QAbstractItemModelTester::FailureReportingMode::QtTest;

struct Error
{
    QString key;
    qint64 time = 0;
    int category = SystemCategory;
    QString station = u"st1"_s;
    QString name = u"Station disconnected"_s;
    QString origin = u"Station: Lobby"_s;
    QString device = {};
};

/// The error list, whose consistency is checked at every change.
class ErrorList : public SystemErrorModel
{
public:
    explicit ErrorList(const QList<Error> &errors = {})
        : SystemErrorModel(nullptr)
    {
        for (const Error &error : errors)
            add(error);
    }

    QStandardItem *add(const Error &error)
    {
        auto *item = new QStandardItem;
        item->setData(error.key, UniqueIDRole);
        item->setData(error.station, StationIDRole);
        item->setData(error.device, DeviceIDRole);
        item->setData(error.time, TimestampRole);
        item->setData(error.category, ErrorCategoryRole);
        item->setData(error.name, ErrorNameRole);
        item->setData(error.origin, TriggerDeviceNameRole);
        appendRow(item);
        return item;
    }

private:
    QAbstractItemModelTester m_tester{this, QtTestMode};
};

/// A proxy over a list; its consistency is checked at every change.
class View : public SystemErrorSortFilterModel
{
public:
    explicit View(ErrorList &errors) { setSourceModel(&errors); }

    QStringList keys() const { return errorKeys(*this); }

private:
    QAbstractItemModelTester m_tester{this, QtTestMode};
};

} // namespace

void tst_SystemErrorSortFilterModel::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_SystemErrorSortFilterModel::classListsItsTwoSetters()
{
    const QMetaObject &metaObject = SystemErrorSortFilterModel::staticMetaObject;
    QCOMPARE(metaObject.className(), "SystemErrorSortFilterModel");
    QCOMPARE(metaObject.superClass(), &QSortFilterProxyModel::staticMetaObject);
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset() + 2);

    const QMetaMethod category = metaObject.method(metaObject.methodOffset());
    QCOMPARE(category.methodSignature(), "setErrorCategory(int)"_ba);
    QCOMPARE(category.parameterNames(), QByteArrayList{"errorCategory"});
    QCOMPARE(category.methodType(), QMetaMethod::Method);
    QCOMPARE(category.access(), QMetaMethod::Public);

    const QMetaMethod station = metaObject.method(metaObject.methodOffset() + 1);
    QCOMPARE(station.methodSignature(), "setFilterParentStationID(QString)"_ba);
    QCOMPARE(station.parameterNames(), QByteArrayList{"stationID"});
    QCOMPARE(station.methodType(), QMetaMethod::Method);
    QCOMPARE(station.access(), QMetaMethod::Public);
}

void tst_SystemErrorSortFilterModel::parentIsOptional()
{
    QObject parent;
    QCOMPARE((new SystemErrorSortFilterModel(&parent))->parent(), &parent);
    QCOMPARE(SystemErrorSortFilterModel().parent(), nullptr);
}

// Order

void tst_SystemErrorSortFilterModel::newestErrorComesFirst()
{
    ErrorList errors({{u"second"_s, 200}, {u"last"_s, 100}, {u"first"_s, 300}});
    QCOMPARE(View(errors).keys(), QStringList({u"first"_s, u"second"_s, u"last"_s}));
}

void tst_SystemErrorSortFilterModel::newerErrorAppendedLaterComesFirst()
{
    ErrorList errors({{u"old"_s, 100}});
    const View view(errors);
    errors.add({u"new"_s, 101});
    QCOMPARE(view.keys(), QStringList({u"new"_s, u"old"_s}));
}

void tst_SystemErrorSortFilterModel::olderErrorAppendedLaterTakesItsPlace()
{
    ErrorList errors({{u"b"_s, 200}, {u"d"_s, 400}});
    const View view(errors);
    errors.add({u"c"_s, 300});
    errors.add({u"a"_s, 100});
    QCOMPARE(view.keys(), QStringList({u"d"_s, u"c"_s, u"b"_s, u"a"_s}));
}

void tst_SystemErrorSortFilterModel::equalTimesKeepTheOrderOfTheList()
{
    ErrorList errors;
    QStringList expected;
    for (int i = 0; i < 40; ++i) {
        const QString key = QString::number(i);
        errors.add({key, 100});
        expected.append(key);
    }
    QCOMPARE(View(errors).keys(), expected);
}

void tst_SystemErrorSortFilterModel::missingTimeIsTheOldest()
{
    ErrorList errors({{u"one"_s, 1}, {u"none"_s, 5}, {u"before the epoch"_s, -1}});
    errors.item(1)->setData(QVariant(), SystemErrorModel::TimestampRole);
    QCOMPARE(View(errors).keys(), QStringList({u"one"_s, u"none"_s, u"before the epoch"_s}));
}

void tst_SystemErrorSortFilterModel::timesAreComparedAsWideIntegers()
{
    // The lower 32 bits are in the opposite order.
    ErrorList errors({{u"old"_s, 0x1'ffff'ffff}, {u"new"_s, 0x2'0000'0000}});
    QCOMPARE(View(errors).keys(), QStringList({u"new"_s, u"old"_s}));

    // A comparison that cuts one side alone would keep the order of arrival, or turn it round.
    ErrorList turned({{u"new"_s, 0x2'0000'0000}, {u"old"_s, 0x1'ffff'ffff}});
    QCOMPARE(View(turned).keys(), QStringList({u"new"_s, u"old"_s}));
}

void tst_SystemErrorSortFilterModel::sortRoleOfTheBaseClassIsIgnored()
{
    ErrorList errors({{u"a"_s, 300}, {u"b"_s, 100}, {u"c"_s, 200}});
    View view(errors);
    view.setSortRole(SystemErrorModel::UniqueIDRole);
    QCOMPARE(view.keys(), QStringList({u"a"_s, u"c"_s, u"b"_s}));
}

void tst_SystemErrorSortFilterModel::orderHoldsWhicheverComesFirstErrorsOrProxy()
{
    ErrorList errors;
    const View before(errors);
    errors.add({u"old"_s, 100});
    errors.add({u"new"_s, 200});
    const View after(errors);
    QCOMPARE(before.keys(), QStringList({u"new"_s, u"old"_s}));
    QCOMPARE(after.keys(), before.keys());
}

// Category

void tst_SystemErrorSortFilterModel::maskShowsItsCategories_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("both") << 3 << QStringList{u"negative"_s, u"both"_s, u"camera"_s, u"system"_s};
    QTest::newRow("system") << 1 << QStringList{u"negative"_s, u"both"_s, u"system"_s};
    QTest::newRow("camera") << 2 << QStringList{u"negative"_s, u"both"_s, u"camera"_s};
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("foreign bit") << 4 << QStringList{u"negative"_s};
    // -1 & -1 is negative, and what is not above 0 does not show.
    QTest::newRow("all bits") << -1 << QStringList{u"both"_s, u"camera"_s, u"system"_s};
    QTest::newRow("sign bit alone") << std::numeric_limits<int>::min() << QStringList();
}

void tst_SystemErrorSortFilterModel::maskShowsItsCategories()
{
    QFETCH(const int, mask);
    QFETCH(const QStringList, shown);
    ErrorList errors({{u"none"_s, 1, 0},
                      {u"system"_s, 2, SystemCategory},
                      {u"camera"_s, 3, CameraCategory},
                      {u"both"_s, 4, SystemCategory | CameraCategory},
                      {u"negative"_s, 5, -1}});
    View view(errors);
    view.setErrorCategory(mask);
    QCOMPARE(view.keys(), shown);
}

void tst_SystemErrorSortFilterModel::maskIsAppliedAtOnce()
{
    ErrorList errors({{u"system"_s, 1, SystemCategory}, {u"camera"_s, 2, CameraCategory}});
    View view(errors);
    QCOMPARE(view.keys(), QStringList({u"camera"_s, u"system"_s}));
    view.setErrorCategory(CameraCategory);
    QCOMPARE(view.keys(), QStringList({u"camera"_s}));
    view.setErrorCategory(SystemCategory);
    QCOMPARE(view.keys(), QStringList({u"system"_s}));
}

// Text

void tst_SystemErrorSortFilterModel::textIsSearchedInNameAndOrigin_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("part of the name") << u"needle in name"_s << true;
    QTest::newRow("part of the origin") << u"needle in origin"_s << true;
    QTest::newRow("part of both") << u"needle in"_s << true;
    QTest::newRow("station") << u"stationid"_s << false;
    QTest::newRow("device") << u"deviceid"_s << false;
    QTest::newRow("key") << u"keyid"_s << false;
    QTest::newRow("type") << u"^1$"_s << false;
    QTest::newRow("across both") << u"name.*origin"_s << false;
}

void tst_SystemErrorSortFilterModel::textIsSearchedInNameAndOrigin()
{
    QFETCH(const QString, pattern);
    QFETCH(const bool, isShown);
    ErrorList errors({{u"keyid"_s, 1, 1, u"stationid"_s, u"a needle in name b"_s,
                       u"a needle in origin b"_s, u"deviceid"_s}});
    errors.item(0)->setData(1, SystemErrorModel::ErrorTypeRole);
    View view(errors);
    view.setFilterRegularExpression(pattern);
    QCOMPARE(view.rowCount(), isShown ? 1 : 0);
}

void tst_SystemErrorSortFilterModel::textFilterIgnoresCaseAtFirst()
{
    ErrorList errors({{u"by name"_s, 3},
                      {u"by origin"_s, 2, 1, u"st1"_s, u"High"_s, u"The disconnected one"_s},
                      {u"neither"_s, 1, 1, u"st1"_s, u"High"_s, u"Lobby"_s}});
    View view(errors);
    QCOMPARE(view.filterCaseSensitivity(), Qt::CaseInsensitive);
    view.setFilterFixedString(u"DISCONNECTED"_s);
    QCOMPARE(view.keys(), QStringList({u"by name"_s, u"by origin"_s}));
}

void tst_SystemErrorSortFilterModel::textFilterFollowsTheCaseSetting()
{
    ErrorList errors({{u"error"_s}});
    View view(errors);
    view.setFilterCaseSensitivity(Qt::CaseSensitive);
    view.setFilterFixedString(u"LOBBY"_s);
    QCOMPARE(view.rowCount(), 0);
    view.setFilterFixedString(u"Lobby"_s);
    QCOMPARE(view.rowCount(), 1);
    view.setFilterFixedString(u"LOBBY"_s);
    view.setFilterCaseSensitivity(Qt::CaseInsensitive);
    QCOMPARE(view.rowCount(), 1);
}

void tst_SystemErrorSortFilterModel::emptyTextShowsEverything()
{
    ErrorList errors({{u"a"_s}, {u"nameless"_s, 0, 1, u"st1"_s, QString(), QString()}});
    View view(errors);
    view.setFilterFixedString(u"nowhere"_s);
    QCOMPARE(view.rowCount(), 0);
    view.setFilterFixedString(QString());
    QCOMPARE(view.rowCount(), 2);
}

void tst_SystemErrorSortFilterModel::textIsARegularExpression()
{
    ErrorList errors({{u"door 2"_s, 2, 1, u"st1"_s, u"E"_s, u"Door 2"_s},
                      {u"door 12"_s, 1, 1, u"st1"_s, u"E"_s, u"Door 12"_s}});
    View view(errors);
    view.setFilterRegularExpression(u"door \\d$"_s);
    QCOMPARE(view.keys(), QStringList({u"door 2"_s}));
}

void tst_SystemErrorSortFilterModel::fixedTextIsTakenLiterally()
{
    ErrorList errors({{u"literal"_s, 2, 1, u"st1"_s, u"CPU (over 90%)"_s},
                      {u"other"_s, 1, 1, u"st1"_s, u"CPU over 90%"_s}});
    View view(errors);
    view.setFilterFixedString(u"(over"_s);
    QCOMPARE(view.keys(), QStringList({u"literal"_s}));
}

void tst_SystemErrorSortFilterModel::textMayBeAWildcardPattern()
{
    ErrorList errors({{u"error"_s}});
    View view(errors);
    view.setFilterWildcard(u"lob?y"_s);
    QCOMPARE(view.rowCount(), 1);
    view.setFilterWildcard(u"lob??y"_s);
    QCOMPARE(view.rowCount(), 0);
}

void tst_SystemErrorSortFilterModel::optionsOfTheExpressionAreDropped_data()
{
    QTest::addColumn<QRegularExpression::PatternOptions>("options");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("blanks count") << QRegularExpression::PatternOptions(
        QRegularExpression::ExtendedPatternSyntaxOption)
                                  << u"Station: Lobby"_s << true;
    QTest::newRow("point matches no line break")
        << QRegularExpression::PatternOptions(QRegularExpression::DotMatchesEverythingOption)
        << u"first.second"_s << false;
    QTest::newRow("lines have no ends of their own")
        << QRegularExpression::PatternOptions(QRegularExpression::MultilineOption) << u"^second"_s
        << false;
}

void tst_SystemErrorSortFilterModel::optionsOfTheExpressionAreDropped()
{
    QFETCH(const QRegularExpression::PatternOptions, options);
    QFETCH(const QString, pattern);
    QFETCH(const bool, isShown);
    ErrorList errors({{u"error"_s, 1, 1, u"st1"_s, u"first\nsecond"_s}});
    View view(errors);
    view.setFilterRegularExpression(QRegularExpression(pattern, options));
    QCOMPARE(view.rowCount(), isShown ? 1 : 0);
}

void tst_SystemErrorSortFilterModel::caseOptionOfTheExpressionBecomesTheCaseSetting()
{
    ErrorList errors({{u"error"_s}});
    View view(errors);
    view.setFilterRegularExpression(QRegularExpression(u"LOBBY"_s));
    QCOMPARE(view.filterCaseSensitivity(), Qt::CaseSensitive);
    QCOMPARE(view.rowCount(), 0);
    view.setFilterRegularExpression(
        QRegularExpression(u"LOBBY"_s, QRegularExpression::CaseInsensitiveOption));
    QCOMPARE(view.filterCaseSensitivity(), Qt::CaseInsensitive);
    QCOMPARE(view.rowCount(), 1);
}

void tst_SystemErrorSortFilterModel::invalidExpressionShowsNothingAndPrintsNothing()
{
    ErrorList errors({{u"a"_s}, {u"b"_s, 0, 1, u"st1"_s, u"["_s, u"[Lobby"_s}});
    View view(errors);
    view.setFilterRegularExpression(u"[Lobby"_s);
    QCOMPARE(view.rowCount(), 0);
    errors.add({u"c"_s});
    QCOMPARE(view.rowCount(), 0);
    view.setFilterRegularExpression(u"\\[Lobby"_s);
    QCOMPARE(view.keys(), QStringList({u"b"_s}));
}

void tst_SystemErrorSortFilterModel::relabelledErrorIsFilteredAnew()
{
    ErrorList errors({{u"error"_s}});
    View view(errors);
    view.setFilterFixedString(u"Gate"_s);
    QCOMPARE(view.rowCount(), 0);
    errors.item(0)->setData(u"Station: Gate"_s, SystemErrorModel::TriggerDeviceNameRole);
    QCOMPARE(view.rowCount(), 1);
}

// Station

void tst_SystemErrorSortFilterModel::stationFilterIsContainment_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("shown");
    const QString none = QString();
    QTest::newRow("own and containing")
        << u"st1"_s << QStringList{u"st1"_s, u"st10"_s, u"xst1"_s, u"st1/sub"_s};
    QTest::newRow("longer") << u"st10"_s << QStringList{u"st10"_s};
    QTest::newRow("middle") << u"t1/s"_s << QStringList{u"st1/sub"_s};
    QTest::newRow("other case") << u"ST1"_s << QStringList{u"ST1"_s};
    QTest::newRow("no such") << u"st9"_s << QStringList();
    QTest::newRow("no pattern") << u"st."_s << QStringList();
    const QStringList all{none, u"st2"_s, u"ST1"_s, u"st1"_s, u"st10"_s, u"xst1"_s, u"st1/sub"_s};
    QTest::newRow("null") << QString() << all;
    QTest::newRow("empty") << u""_s << all;
}

void tst_SystemErrorSortFilterModel::stationFilterIsContainment()
{
    QFETCH(const QString, filter);
    QFETCH(const QStringList, shown);
    ErrorList errors;
    qint64 time = 100;
    for (const QString &station :
         {QString(), u"st2"_s, u"ST1"_s, u"st1"_s, u"st10"_s, u"xst1"_s, u"st1/sub"_s})
        errors.add({station, time--, SystemCategory, station});
    View view(errors);
    view.setFilterParentStationID(filter);
    QCOMPARE(view.keys(), shown);
}

void tst_SystemErrorSortFilterModel::stationFilterIgnoresTheCaseSetting()
{
    ErrorList errors({{u"error"_s}});
    View view(errors);
    view.setFilterCaseSensitivity(Qt::CaseInsensitive);
    view.setFilterParentStationID(u"ST1"_s);
    QCOMPARE(view.rowCount(), 0);
    view.setFilterCaseSensitivity(Qt::CaseSensitive);
    view.setFilterParentStationID(u"st1"_s);
    QCOMPARE(view.rowCount(), 1);
}

void tst_SystemErrorSortFilterModel::emptyStationFilterShowsEveryStationAgain()
{
    ErrorList errors({{u"a"_s, 2, 1, u"st1"_s}, {u"b"_s, 1, 1, u"st2"_s}});
    View view(errors);
    view.setFilterParentStationID(u"st2"_s);
    QCOMPARE(view.keys(), QStringList({u"b"_s}));
    view.setFilterParentStationID(QString());
    QCOMPARE(view.keys(), QStringList({u"a"_s, u"b"_s}));
}

void tst_SystemErrorSortFilterModel::filtersApplyTogether()
{
    const QString name = u"Camera disconnected"_s;
    ErrorList errors({{u"all three"_s, 1, CameraCategory, u"st1"_s, name},
                      {u"other category"_s, 2, SystemCategory, u"st1"_s, name},
                      {u"other station"_s, 3, CameraCategory, u"st2"_s, name},
                      {u"other text"_s, 4, CameraCategory, u"st1"_s, u"Camera dark"_s}});
    View view(errors);
    view.setErrorCategory(CameraCategory);
    view.setFilterParentStationID(u"st1"_s);
    view.setFilterFixedString(u"disconnected"_s);
    QCOMPARE(view.keys(), QStringList({u"all three"_s}));
}

// Source

void tst_SystemErrorSortFilterModel::proxiesOverOneListAreIndependent()
{
    ErrorList errors({{u"s1"_s, 1, SystemCategory, u"st1"_s},
                      {u"c1"_s, 2, CameraCategory, u"st1"_s},
                      {u"s2"_s, 3, SystemCategory, u"st2"_s, u"Volume disconnected"_s}});
    const View everything(errors);
    View cameras(errors);
    View second(errors);
    View volumes(errors);
    cameras.setErrorCategory(CameraCategory);
    second.setFilterParentStationID(u"st2"_s);
    volumes.setFilterFixedString(u"volume"_s);
    errors.add({u"c2"_s, 4, CameraCategory, u"st2"_s});

    QCOMPARE(everything.keys(), QStringList({u"c2"_s, u"s2"_s, u"c1"_s, u"s1"_s}));
    QCOMPARE(cameras.keys(), QStringList({u"c2"_s, u"c1"_s}));
    QCOMPARE(second.keys(), QStringList({u"c2"_s, u"s2"_s}));
    QCOMPARE(volumes.keys(), QStringList({u"s2"_s}));

    errors.removeRow(1);
    errors.removeRow(0);
    QCOMPARE(everything.keys(), QStringList({u"c2"_s, u"s2"_s}));
    QCOMPARE(cameras.keys(), QStringList({u"c2"_s}));
}

void tst_SystemErrorSortFilterModel::proxyFollowsTheSource()
{
    ErrorList errors({{u"a"_s, 1}, {u"b"_s, 2}});
    const View view(errors);
    errors.clear();
    QCOMPARE(view.rowCount(), 0);
    errors.add({u"c"_s, 3});
    QCOMPARE(view.keys(), QStringList({u"c"_s}));
    QCOMPARE(view.roleNames(), errors.roleNames());
}

void tst_SystemErrorSortFilterModel::proxyWithoutASourceIsEmpty()
{
    SystemErrorSortFilterModel proxy;
    proxy.setErrorCategory(CameraCategory);
    proxy.setFilterParentStationID(u"st1"_s);
    proxy.setFilterFixedString(u"x"_s);
    QCOMPARE(proxy.rowCount(), 0);
}

QTEST_GUILESS_MAIN(tst_SystemErrorSortFilterModel)
#include "tst_SystemErrorSortFilterModel.moc"
