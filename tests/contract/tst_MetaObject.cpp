#include "TestHost.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The plug-in's meta-object, which is all that QML and the host's wiring see of it.
class tst_MetaObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void classIsNamedAndDerivesFromQObject();
    void methodIsListed_data();
    void methodIsListed();
    void noOtherMethodIsListed();
    void propertyIsListed_data();
    void propertyIsListed();
    void noOtherPropertyIsListed();
    void noEnumeratorsNoConstructorsNoClassInformation();
    void privateInvokablesAreReachedByName();
    void proxyListsItsTwoSetters();
};

namespace {

struct Method
{
    const char *signature;
    QMetaMethod::MethodType kind;
    QMetaMethod::Access access;
    const char *returnType;
    QByteArrayList parameterTypes;
    QByteArrayList parameterNames;
};

constexpr auto Signal = QMetaMethod::Signal;
constexpr auto Slot = QMetaMethod::Slot;
constexpr auto Invokable = QMetaMethod::Method;
constexpr auto Public = QMetaMethod::Public;
constexpr auto Private = QMetaMethod::Private;

// clang-format off
const QList<Method> methods {
    {"systemResourceChanged(int,int,QVariantList)", Signal, Public, "void", {"int", "int", "QVariantList"}, {"cpu", "memory", "networkList"}},
    {"focusStationResourceChanged(QString)", Signal, Public, "void", {"QString"}, {"focusStationResource"}},
    {"stationErrorListChanged()", Signal, Public, "void", {}, {}},
    {"isSupportSystemMonitor(QString,bool)", Signal, Public, "void", {"QString", "bool"}, {"stationId", "isSupport"}},
    {"clientResourceChanged(int,int)", Signal, Public, "void", {"int", "int"}, {"cpu", "memory"}},
    {"notifySystemResourceUpdated()", Signal, Public, "void", {}, {}},
    {"notifyServerReachingLimited(QString,double)", Signal, Public, "void", {"QString", "double"}, {"serverName", "percentage"}},
    {"setSnoozeResponse(bool)", Signal, Public, "void", {"bool"}, {"success"}},

    {"initNodeStatusErrorTimer(bool)", Slot, Private, "void", {"bool"}, {"success"}},

    {"getSystemErrorModel()", Invokable, Public, "QObject*", {}, {}},
    {"getSystemErrorSortFilterModel(QObject*)", Invokable, Public, "QObject*", {"QObject*"}, {"parent"}},
    {"getSystemResourceModel()", Invokable, Public, "QObject*", {}, {}},
    {"checkSupportSystemMonitor(QString)", Invokable, Public, "bool", {"QString"}, {"stationId"}},
    {"reconnectDisconnectSubstations()", Invokable, Public, "void", {}, {}},
    {"reconnectDisconnectCameras()", Invokable, Public, "void", {}, {}},
    {"setSnooze(QString,qlonglong,int)", Invokable, Public, "bool", {"QString", "qlonglong", "int"}, {"nodeID", "timestamp", "type"}},
    {"initNodeStatusError()", Invokable, Public, "void", {}, {}},

    {"monitorNodeStatus(int,QString,bool)", Invokable, Private, "void", {"int", "QString", "bool"}, {"type", "nodeID", "connected"}},
    {"monitorNodeStatusForInit(int,QString,bool,QString)", Invokable, Private, "void", {"int", "QString", "bool", "QString"}, {"type", "nodeID", "connected", "triggerDeviceName"}},
    {"monitorVolumeStatus(QString)", Invokable, Private, "void", {"QString"}, {"nodeID"}},
    {"removeCameraError(QString)", Invokable, Private, "void", {"QString"}, {"nodeID"}},
    {"removeStationError(QString)", Invokable, Private, "void", {"QString"}, {"nodeID"}},
    {"removeVolumeError(QString)", Invokable, Private, "void", {"QString"}, {"nodeID"}},
    {"monitorCPUUsage(QString,int)", Invokable, Private, "void", {"QString", "int"}, {"stationID", "usage"}},
    {"monitorMemoryUsage(QString,int)", Invokable, Private, "void", {"QString", "int"}, {"stationID", "usage"}},
    {"monitorNetworkUsage(QString,int,QString)", Invokable, Private, "void", {"QString", "int", "QString"}, {"stationID", "usage", "interfaceName"}},
    {"monitorInsufficientRecordingDays(QString,QString,QString)", Invokable, Private, "void", {"QString", "QString", "QString"}, {"stationID", "groupName", "groupID"}},
    {"monitorSufficientRecordingGroup(QString,QString)", Invokable, Private, "void", {"QString", "QString"}, {"stationID", "groupID"}},
    {"updateStationErrorNumber()", Invokable, Private, "void", {}, {}},
};
// clang-format on

struct Property
{
    const char *name;
    const char *type;
    bool isWritable;
    const char *notifySignal;
};

const QList<Property> properties{
    {"focusStationResource", "QString", true, "focusStationResourceChanged(QString)"},
    {"stationErrorList", "QVariantList", false, "stationErrorListChanged()"},
};

} // namespace

void tst_MetaObject::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_MetaObject::classIsNamedAndDerivesFromQObject()
{
    const TestHost host(TestHost::Loaded);
    const QMetaObject *metaObject = host.object()->metaObject();
    QCOMPARE(metaObject->className(), "PluginSystemMonitor");
    QCOMPARE(metaObject->superClass(), &QObject::staticMetaObject);
}

void tst_MetaObject::methodIsListed_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < methods.size(); ++i)
        QTest::addRow("%d %s", i, methods[i].signature) << i;
}

void tst_MetaObject::methodIsListed()
{
    QFETCH(const int, index);
    const Method &expected = methods[index];
    const TestHost host(TestHost::Loaded);
    const QMetaObject *metaObject = host.object()->metaObject();
    const QMetaMethod method = metaObject->method(metaObject->methodOffset() + index);

    QCOMPARE(method.methodSignature(), QByteArray(expected.signature));
    QCOMPARE(method.methodType(), expected.kind);
    QCOMPARE(method.access(), expected.access);
    QCOMPARE(method.typeName(), expected.returnType);
    QCOMPARE(method.parameterTypes(), expected.parameterTypes);
    QCOMPARE(method.parameterNames(), expected.parameterNames);
    QCOMPARE(method.isConst(), false);
    QCOMPARE(method.tag(), "");
    QCOMPARE(method.attributes(), 0);
    QCOMPARE(method.revision(), 0);
}

void tst_MetaObject::noOtherMethodIsListed()
{
    const TestHost host(TestHost::Loaded);
    const QMetaObject *metaObject = host.object()->metaObject();
    QCOMPARE(metaObject->methodCount() - metaObject->methodOffset(), methods.size());
}

void tst_MetaObject::propertyIsListed_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < properties.size(); ++i)
        QTest::addRow("%d %s", i, properties[i].name) << i;
}

void tst_MetaObject::propertyIsListed()
{
    QFETCH(const int, index);
    const Property &expected = properties[index];
    const TestHost host(TestHost::Loaded);
    const QMetaObject *metaObject = host.object()->metaObject();
    const QMetaProperty property = metaObject->property(metaObject->propertyOffset() + index);

    QCOMPARE(property.name(), expected.name);
    QCOMPARE(property.typeName(), expected.type);
    QCOMPARE(property.notifySignal().methodSignature(), QByteArray(expected.notifySignal));
    QVERIFY(property.isReadable());
    QCOMPARE(property.isWritable(), expected.isWritable);
    QVERIFY(!property.isResettable());
    QVERIFY(property.isDesignable());
    QVERIFY(property.isScriptable());
    QVERIFY(property.isStored());
    QVERIFY(!property.isUser());
    QVERIFY(!property.isConstant());
    QVERIFY(!property.isFinal());
    QVERIFY(!property.isRequired());
    QVERIFY(!property.isBindable());
    QVERIFY(!property.isEnumType());
    QCOMPARE(property.revision(), 0);
}

void tst_MetaObject::noOtherPropertyIsListed()
{
    const TestHost host(TestHost::Loaded);
    const QMetaObject *metaObject = host.object()->metaObject();
    QCOMPARE(metaObject->propertyCount() - metaObject->propertyOffset(), properties.size());
}

void tst_MetaObject::noEnumeratorsNoConstructorsNoClassInformation()
{
    const TestHost host(TestHost::Loaded);
    const QMetaObject *metaObject = host.object()->metaObject();
    QCOMPARE(metaObject->enumeratorCount(), metaObject->enumeratorOffset());
    QCOMPARE(metaObject->classInfoCount(), metaObject->classInfoOffset());
    QCOMPARE(metaObject->constructorCount(), 0);
}

void tst_MetaObject::privateInvokablesAreReachedByName()
{
    TestHost host;
    host.invoke("initNodeStatusErrorTimer", true);
    host.invoke("monitorNodeStatus", 0, u"st1/cam1"_s, false);
    host.invoke("monitorNodeStatusForInit", 1, u"st2"_s, false, u"Gate"_s);
    host.invoke("monitorVolumeStatus", u"st3"_s);
    host.invoke("monitorCPUUsage", u"st4"_s, 100);
    host.invoke("monitorMemoryUsage", u"st4"_s, 100);
    host.invoke("monitorNetworkUsage", u"st4"_s, 100, u"en0"_s);
    host.invoke("monitorInsufficientRecordingDays", u"st5"_s, u"Group"_s, u"g1"_s);
    host.invoke("updateStationErrorNumber");
    QCOMPARE(host.errorKeys(), QStringList({u"3_st1/cam1"_s, u"4_st2"_s, u"5_st3"_s, u"0_st4"_s,
                                            u"1_st4"_s, u"2_st4_en0"_s, u"7_st5_g1"_s}));

    host.invoke("removeCameraError", u"st1/cam1"_s);
    host.invoke("removeStationError", u"st2"_s);
    host.invoke("removeVolumeError", u"st3"_s);
    host.invoke("monitorSufficientRecordingGroup", u"st5"_s, u"g1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st4"_s, u"1_st4"_s, u"2_st4_en0"_s}));
}

void tst_MetaObject::proxyListsItsTwoSetters()
{
    TestHost host;
    QObject parent;
    const auto *proxy = host.ask<QObject *>("getSystemErrorSortFilterModel", &parent);
    const QMetaObject *metaObject = proxy->metaObject();
    QCOMPARE(metaObject->className(), "SystemErrorSortFilterModel");
    QCOMPARE(metaObject->superClass()->className(), "QSortFilterProxyModel");
    QCOMPARE(metaObject->methodCount() - metaObject->methodOffset(), 2);
    QCOMPARE(metaObject->propertyCount(), metaObject->propertyOffset());

    const QMetaMethod category = metaObject->method(metaObject->methodOffset());
    QCOMPARE(category.methodSignature(), QByteArray("setErrorCategory(int)"));
    QCOMPARE(category.parameterNames(), QByteArrayList({"errorCategory"}));
    const QMetaMethod station = metaObject->method(metaObject->methodOffset() + 1);
    QCOMPARE(station.methodSignature(), QByteArray("setFilterParentStationID(QString)"));
    QCOMPARE(station.parameterNames(), QByteArrayList({"stationID"}));
    for (const QMetaMethod &setter : {category, station}) {
        QCOMPARE(setter.methodType(), Invokable);
        QCOMPARE(setter.access(), Public);
        QCOMPARE(setter.typeName(), "void");
    }
}

QTEST_GUILESS_MAIN(tst_MetaObject)
#include "tst_MetaObject.moc"
