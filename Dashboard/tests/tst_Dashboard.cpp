#include "FakeFiles.h"
#include "FakeLog.h"
#include "FakePlugin.h"

#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(DashboardPlugin)

/// Lets the QML tests import the dashboard and the stand-in for the plug-in.
class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        qmlRegisterType<FakeFiles>("Dashboard.Testing", 1, 0, "FakeFiles");
        qmlRegisterType<FakeLog>("Dashboard.Testing", 1, 0, "FakeLog");
        qmlRegisterType<FakePlugin>("Dashboard.Testing", 1, 0, "FakePlugin");
    }
};

QUICK_TEST_MAIN_WITH_SETUP(Dashboard, Setup)

#include "tst_Dashboard.moc"
