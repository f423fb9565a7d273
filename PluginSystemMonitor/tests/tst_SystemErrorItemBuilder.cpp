#include "SystemErrorItemBuilder.h"

#include "PrintedValue.h"
#include "SystemErrorModel.h"

#include <QRegularExpression>
#include <QStandardItem>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class tst_SystemErrorItemBuilder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void valueOfARecordKeyGoesToItsRole_data();
    void valueOfARecordKeyGoesToItsRole();
    void valuesAreStoredUnconverted_data();
    void valuesAreStoredUnconverted();
    void missingKeyLeavesItsRoleEmpty_data();
    void missingKeyLeavesItsRoleEmpty();
    void foreignKeysAreIgnored();
    void itemHasNoTextAndNoChildren();
    void everyCallMakesANewItem();
};

namespace {

using Record = QMap<QString, QVariant>;

struct Field
{
    const char *key;
    int role;
};

constexpr Field fields[] = {
    {"id", 264},        {"stationID", 257},         {"deviceID", 258},
    {"timestamp", 261}, {"errorCategory", 260},     {"errorType", 259},
    {"errorName", 262}, {"triggerDeviceName", 263},
};

std::unique_ptr<QStandardItem> itemOf(const Record &record)
{
    return std::unique_ptr<QStandardItem>(SystemErrorItemBuilder::create(record));
}

// Its values are all different.
Record fullRecord()
{
    Record record;
    for (const Field &field : fields)
        record.insert(QString::fromUtf8(field.key), u"value of "_s + QString::fromUtf8(field.key));
    return record;
}

void addFieldRows()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("role");
    for (const Field &field : fields)
        QTest::newRow(field.key) << QString::fromUtf8(field.key) << field.role;
}

} // namespace

void tst_SystemErrorItemBuilder::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_SystemErrorItemBuilder::valueOfARecordKeyGoesToItsRole_data()
{
    addFieldRows();
}

void tst_SystemErrorItemBuilder::valueOfARecordKeyGoesToItsRole()
{
    QFETCH(const QString, key);
    QFETCH(const int, role);
    QCOMPARE(itemOf(fullRecord())->data(role).toString(), u"value of "_s + key);
}

void tst_SystemErrorItemBuilder::valuesAreStoredUnconverted_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("int") << QVariant(7);
    QTest::newRow("64-bit integer") << QVariant(qint64(1700000000000));
    QTest::newRow("string") << QVariant(u"st1"_s);
    QTest::newRow("empty string") << QVariant(QString());
    QTest::newRow("double") << QVariant(1.5);
    QTest::newRow("list") << QVariant(QVariantList{1, u"a"_s});
}

void tst_SystemErrorItemBuilder::valuesAreStoredUnconverted()
{
    QFETCH(const QVariant, value);
    Record record = fullRecord();
    for (QVariant &entry : record)
        entry = value;

    const auto item = itemOf(record);
    for (const Field &field : fields)
        QCOMPARE(printedValue(item->data(field.role)), printedValue(value));
}

void tst_SystemErrorItemBuilder::missingKeyLeavesItsRoleEmpty_data()
{
    addFieldRows();
}

void tst_SystemErrorItemBuilder::missingKeyLeavesItsRoleEmpty()
{
    QFETCH(const QString, key);
    QFETCH(const int, role);
    Record record = fullRecord();
    record.remove(key);

    const auto item = itemOf(record);
    for (const Field &field : fields)
        QCOMPARE(item->data(field.role).isValid(), field.role != role);
}

void tst_SystemErrorItemBuilder::foreignKeysAreIgnored()
{
    const auto item = itemOf({{u"ID"_s, 1}, {u"severity"_s, 2}});
    for (int role = Qt::UserRole; role < Qt::UserRole + 20; ++role)
        QVERIFY(!item->data(role).isValid());
}

void tst_SystemErrorItemBuilder::itemHasNoTextAndNoChildren()
{
    const auto item = itemOf(fullRecord());
    QVERIFY(!item->data(Qt::DisplayRole).isValid());
    QCOMPARE(item->text(), QString());
    QVERIFY(!item->hasChildren());
}

void tst_SystemErrorItemBuilder::everyCallMakesANewItem()
{
    const auto first = itemOf(fullRecord());
    const auto second = itemOf(fullRecord());
    QVERIFY(first != second);
    QCOMPARE(first->model(), nullptr);
}

QTEST_GUILESS_MAIN(tst_SystemErrorItemBuilder)
#include "tst_SystemErrorItemBuilder.moc"
