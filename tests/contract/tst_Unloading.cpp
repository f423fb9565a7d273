#include "TestTraceLibrary.h"

#include <QObject>
#include <QRegularExpression>
#include <QTest>

#include <dlfcn.h>

/// The plug-in file leaves the process again. Each step needs the one before.
class tst_Unloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void loadingOpensTheTraceLibrary();
    void objectMayComeAndGo();
    void unloadingClosesTheTraceLibrary();

private:
    void *m_plugin = nullptr;
};

void tst_Unloading::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_Unloading::loadingOpensTheTraceLibrary()
{
    QVERIFY(!TestTraceLibrary::isLoaded());
    m_plugin = dlopen(PLUGIN_FILE, RTLD_LAZY);
    QVERIFY2(m_plugin, dlerror());
    QVERIFY(TestTraceLibrary::isLoaded());
}

void tst_Unloading::objectMayComeAndGo()
{
    const auto instance = reinterpret_cast<QObject *(*)()>(dlsym(m_plugin, "qt_plugin_instance"));
    QVERIFY(instance);
    for (int i = 0; i < 2; ++i) {
        QObject *const object = instance();
        QVERIFY(object);
        QCOMPARE(instance(), object);
        delete object;
    }
    QVERIFY(TestTraceLibrary::isLoaded());
}

void tst_Unloading::unloadingClosesTheTraceLibrary()
{
    QCOMPARE(dlclose(m_plugin), 0);
    QVERIFY2(!dlopen(PLUGIN_FILE, RTLD_LAZY | RTLD_NOLOAD), "The plug-in is still loaded");
    QVERIFY(!TestTraceLibrary::isLoaded());
}

QTEST_GUILESS_MAIN(tst_Unloading)
#include "tst_Unloading.moc"
