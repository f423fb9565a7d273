#include "PluginHost.h"

#include "HostFailure.h"
#include "PluginBase.h"
#include "SiteServer.h"
#include "TextFile.h"

#include <QPointer>
#include <QRegularExpression>
#include <QTest>

#include <memory>

namespace {

QString pluginFile(const char *name)
{
    return QStringLiteral(TEST_PLUGIN_FOLDER "/%1.so").arg(QString::fromLatin1(name));
}

QString failureToLoad(const QString &file)
{
    return hostFailure([&file] { const PluginHost host(file); });
}

QStringList takeLog(const PluginHost &host)
{
    QStringList log;
    QMetaObject::invokeMethod(host.plugin(), "takeLog", Q_RETURN_ARG(QStringList, log));
    return log;
}

std::unique_ptr<Framework> echo()
{
    return std::make_unique<Framework>([](const QString &command, const QVariant &, const QString &,
                                          const Framework::Answer &answer) {
        answer({QStringLiteral("code"), command});
    });
}

} // namespace

class tst_PluginHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void takesAPluginThroughItsLife();
    void eachHostHasAnObjectOfItsOwn();
    void answersWhatIsOutstandingBeforeTheEnd();
    void frameworkMayGoFirst();
    void missingFileIsNamed();
    void filesThatAreNoPluginsAreNamed();
    void pluginsForOthersAreRefused_data();
    void pluginsForOthersAreRefused();
    void failureToInitialiseIsReported();
};

void tst_PluginHost::takesAPluginThroughItsLife()
{
    const std::unique_ptr<Framework> framework = echo();
    PluginHost host(pluginFile("FakeMonitorPlugin"));
    QCOMPARE(host.pluginId(), QStringLiteral("{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"));
    QVERIFY(!framework->GetPluginObject(framework->handle(), host.pluginId()));
    host.initialise(nullptr, *framework);
    QCOMPARE(framework->GetPluginObject(framework->handle(), host.pluginId()), host.plugin());
    host.pair();
    host.serverConnected();
    host.serverDisconnected();
    QCOMPARE(takeLog(host), QStringList({QStringLiteral("initialised"), QStringLiteral("paired"),
                                         QStringLiteral("server connected"),
                                         QStringLiteral("server disconnected")}));
    const QPointer<QObject> object = host.plugin();
    host.destroy();
    QVERIFY(!object);
    QVERIFY(!host.plugin());
    QVERIFY(!framework->GetPluginObject(framework->handle(), host.pluginId()));
    host.destroy();
}

void tst_PluginHost::eachHostHasAnObjectOfItsOwn()
{
    QPointer<QObject> object;
    {
        const PluginHost host(pluginFile("FakeMonitorPlugin"));
        object = host.plugin();
    }
    QVERIFY(!object);
    const PluginHost again(pluginFile("FakeMonitorPlugin"));
    QVERIFY(again.plugin());
}

void tst_PluginHost::answersWhatIsOutstandingBeforeTheEnd()
{
    const std::unique_ptr<Framework> framework = echo();
    QStringList executed;
    connect(framework.get(), &Framework::commandExecuted, this,
            [&executed](const QString &command) { executed.append(command); });
    {
        PluginHost host(pluginFile("FakeMonitorPlugin"));
        host.initialise(nullptr, *framework);
        QVERIFY(framework->SendCommand(framework->handle(), host.pluginId(), QStringLiteral("ask"),
                                       {}, nullptr, 0, {}));
    }
    QCOMPARE(executed, QStringList{QStringLiteral("ask")});
}

void tst_PluginHost::frameworkMayGoFirst()
{
    std::unique_ptr<Framework> framework = echo();
    PluginHost host(pluginFile("FakeMonitorPlugin"));
    host.initialise(nullptr, *framework);
    framework.reset();
    host.destroy();
}

void tst_PluginHost::missingFileIsNamed()
{
    const QString file = QStringLiteral("/nowhere/../nowhere/plugin.so");
    const QString message = failureToLoad(file);
    QVERIFY2(message.startsWith(QStringLiteral("/nowhere/plugin.so: cannot be loaded")),
             qPrintable(message));
}

void tst_PluginHost::filesThatAreNoPluginsAreNamed()
{
    const TextFile file("no library", QStringLiteral("plugin.so"));
    const QString message = failureToLoad(file.path());
    QVERIFY2(message.startsWith(file.path() + QStringLiteral(": cannot be loaded")),
             qPrintable(message));
}

void tst_PluginHost::pluginsForOthersAreRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");
    QTest::newRow("other interface")
        << pluginFile("ForeignPlugin")
        << QStringLiteral("expected a plug-in with the interface "
                          "\"com.ZENTARO.UIFramework.PluginInterface\", "
                          "found \"com.example.Foreign\"");
    QTest::newRow("no id") << pluginFile("NamelessPlugin")
                           << QStringLiteral("expected a plug-in id in the metadata");
    QTest::newRow("other object") << pluginFile("EmptyPlugin")
                                  << QStringLiteral("its object is no plug-in of this host");
}

void tst_PluginHost::pluginsForOthersAreRefused()
{
    QFETCH(QString, file);
    QFETCH(QString, message);
    QCOMPARE(failureToLoad(file), file + QStringLiteral(": ") + message);
}

void tst_PluginHost::failureToInitialiseIsReported()
{
    const std::unique_ptr<Framework> framework = echo();
    PluginHost host(pluginFile("FakeMonitorPlugin"));
    qputenv("FAKE_MONITOR_FAILS", "1");
    const QString message =
        hostFailure([&host, &framework] { host.initialise(nullptr, *framework); });
    qunsetenv("FAKE_MONITOR_FAILS");
    QVERIFY2(message.endsWith(QStringLiteral(": the plug-in failed to initialise")),
             qPrintable(message));
}

QTEST_GUILESS_MAIN(tst_PluginHost)
#include "tst_PluginHost.moc"
