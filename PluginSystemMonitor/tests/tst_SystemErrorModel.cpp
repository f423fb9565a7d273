#include "SystemErrorModel.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_SystemErrorModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void roleHasItsNumberAndName_data();
    void roleHasItsNumberAndName();
    void noOtherRoleIsListed();
    void modelIsEmptyAtFirst();
    void modelPassesItsParentOn();
    void modelAddsNoMethodsAndNoProperties();
    void rowsKeepTheOrderOfArrival();
};

void tst_SystemErrorModel::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_SystemErrorModel::roleHasItsNumberAndName_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("name");

    const auto row = [](int role, int number, const char *name) {
        QTest::newRow(name) << role << number << QByteArray(name);
    };
    row(SystemErrorModel::StationIDRole, 257, "stationIDRole");
    row(SystemErrorModel::DeviceIDRole, 258, "deviceIDRole");
    row(SystemErrorModel::ErrorTypeRole, 259, "errorTypeRole");
    row(SystemErrorModel::ErrorCategoryRole, 260, "errorCategoryRole");
    row(SystemErrorModel::TimestampRole, 261, "timestampRole");
    row(SystemErrorModel::ErrorNameRole, 262, "errorNameRole");
    row(SystemErrorModel::TriggerDeviceNameRole, 263, "triggerDeviceNameRole");
    row(SystemErrorModel::UniqueIDRole, 264, "uniqueIDRole");
}

void tst_SystemErrorModel::roleHasItsNumberAndName()
{
    QFETCH(const int, role);
    QFETCH(const int, number);
    QFETCH(const QByteArray, name);
    const SystemErrorModel model(nullptr);
    QCOMPARE(role, number);
    QCOMPARE(model.roleNames().value(role), name);
}

void tst_SystemErrorModel::noOtherRoleIsListed()
{
    const SystemErrorModel model(nullptr);
    QCOMPARE(model.roleNames().size(), 8);
    QVERIFY(!model.roleNames().contains(Qt::DisplayRole));
}

void tst_SystemErrorModel::modelIsEmptyAtFirst()
{
    const SystemErrorModel model(nullptr);
    QCOMPARE(model.rowCount(), 0);
}

void tst_SystemErrorModel::modelPassesItsParentOn()
{
    QObject parent;
    const auto *model = new SystemErrorModel(&parent);
    QCOMPARE(model->parent(), &parent);
}

void tst_SystemErrorModel::modelAddsNoMethodsAndNoProperties()
{
    const QMetaObject &metaObject = SystemErrorModel::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QStandardItemModel::staticMetaObject);
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
}

void tst_SystemErrorModel::rowsKeepTheOrderOfArrival()
{
    SystemErrorModel model(nullptr);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (const QString &key : {u"b"_s, u"c"_s, u"a"_s}) {
        auto *item = new QStandardItem;
        item->setData(key, SystemErrorModel::UniqueIDRole);
        model.appendRow(item);
    }
    model.removeRow(1);

    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(model.index(0, 0).data(SystemErrorModel::UniqueIDRole).toString(), u"b"_s);
    QCOMPARE(model.index(1, 0).data(SystemErrorModel::UniqueIDRole).toString(), u"a"_s);
}

QTEST_GUILESS_MAIN(tst_SystemErrorModel)
#include "tst_SystemErrorModel.moc"
