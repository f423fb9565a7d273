#include "SystemResourceModelItem.h"

#include "PrintedValue.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class tst_SystemResourceModelItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newRowHasAllItsValues_data();
    void newRowHasAllItsValues();
    void newRowHasNoText();
    void everyCallMakesANewRow();
    void roleHasItsNumberAndName_data();
    void roleHasItsNumberAndName();
    void noOtherRoleIsListed();
    void titleOfAType_data();
    void titleOfAType();
};

namespace {

using Type = SystemResourceModelItem::Type;

std::unique_ptr<SystemResourceModelItem> row(Type type)
{
    return std::unique_ptr<SystemResourceModelItem>(
        SystemResourceModelItem::create(type, u"Title"_s, u"Subtitle"_s, 75));
}

} // namespace

void tst_SystemResourceModelItem::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_SystemResourceModelItem::newRowHasAllItsValues_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("printedType");
    QTest::newRow("CPU") << SystemResourceModelItem::CpuType << u"0"_s;
    QTest::newRow("memory") << SystemResourceModelItem::MemoryType << u"1"_s;
    QTest::newRow("network") << SystemResourceModelItem::NetworkType << u"2"_s;
}

void tst_SystemResourceModelItem::newRowHasAllItsValues()
{
    QFETCH(const Type, type);
    QFETCH(const QString, printedType);
    const auto item = row(type);
    QCOMPARE(printedValue(item->data(257)), printedType);
    QCOMPARE(printedValue(item->data(258)), u"\"Title\""_s);
    QCOMPARE(printedValue(item->data(259)), u"\"Subtitle\""_s);
    QCOMPARE(printedValue(item->data(260)), u"75"_s);
    QCOMPARE(item->data(261).typeId(), int(QMetaType::QVariantList));
    QCOMPARE(printedValue(item->data(261)), printedValue(QVariantList(60, QVariant(int(0)))));
    QCOMPARE(printedValue(item->data(262)), u"0"_s);
}

void tst_SystemResourceModelItem::newRowHasNoText()
{
    QVERIFY(!row(SystemResourceModelItem::CpuType)->data(Qt::DisplayRole).isValid());
}

void tst_SystemResourceModelItem::everyCallMakesANewRow()
{
    QVERIFY(row(SystemResourceModelItem::CpuType) != row(SystemResourceModelItem::CpuType));
}

void tst_SystemResourceModelItem::roleHasItsNumberAndName_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("name");

    const auto row = [](int role, int number, const char *name) {
        QTest::newRow(name) << role << number << QByteArray(name);
    };
    row(SystemResourceModelItem::TypeRole, 257, "typeRole");
    row(SystemResourceModelItem::TitleRole, 258, "titleRole");
    row(SystemResourceModelItem::SubtitleRole, 259, "subtitleRole");
    row(SystemResourceModelItem::ThresholdRole, 260, "thresholdRole");
    row(SystemResourceModelItem::UsageListRole, 261, "usageListRole");
    row(SystemResourceModelItem::BandwidthRole, 262, "bandwidthRole");
}

void tst_SystemResourceModelItem::roleHasItsNumberAndName()
{
    QFETCH(const int, role);
    QFETCH(const int, number);
    QFETCH(const QByteArray, name);
    QCOMPARE(role, number);
    QCOMPARE(SystemResourceModelItem::roleNames().value(role), name);
}

void tst_SystemResourceModelItem::noOtherRoleIsListed()
{
    QCOMPARE(SystemResourceModelItem::roleNames().size(), 6);
}

void tst_SystemResourceModelItem::titleOfAType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    QTest::newRow("CPU") << 0 << u"CPU usage"_s;
    QTest::newRow("memory") << 1 << u"Memory usage"_s;
    QTest::newRow("network") << 2 << u"Network usage"_s;
    QTest::newRow("above") << 3 << QString();
    QTest::newRow("below") << -1 << QString();
}

void tst_SystemResourceModelItem::titleOfAType()
{
    QFETCH(const int, type);
    QFETCH(const QString, title);
    QCOMPARE(getTitle(static_cast<Type>(type)), title);
}

QTEST_GUILESS_MAIN(tst_SystemResourceModelItem)
#include "tst_SystemResourceModelItem.moc"
