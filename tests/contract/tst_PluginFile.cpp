#include "LoadedPlugin.h"
#include "PluginBase.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What the plug-in file says of itself and what it exports.
class tst_PluginFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void metadataNamesInterfaceAndClass();
    void metadataHasExactlyTwoKeysOfItsOwn();
    void metadataIsReadWithoutLoadingTheCode();
    void metadataAppearsInTheTool();
    void onlyTheEntryPointsAreExported();
    void sameObjectComesTwice();
    void objectHasNoParent();
    void newObjectComesAfterDestruction();
    void entryPointGivesTheLoadersObject();
};

namespace {

QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s: %s", qUtf8Printable(program), process.readAllStandardError().constData());
    return QString::fromUtf8(process.readAllStandardOutput());
}

QJsonObject ownMetadata()
{
    return {{u"ClientOnly"_s, false}, {u"PluginID"_s, u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s}};
}

} // namespace

void tst_PluginFile::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_PluginFile::metadataNamesInterfaceAndClass()
{
    const QJsonObject metadata = QPluginLoader(QStringLiteral(PLUGIN_FILE)).metaData();
    QCOMPARE(metadata.value("IID"_L1).toString(), u"com.ZENTARO.UIFramework.PluginInterface"_s);
    QCOMPARE(metadata.value("className"_L1).toString(), u"PluginSystemMonitor"_s);
}

void tst_PluginFile::metadataHasExactlyTwoKeysOfItsOwn()
{
    const QJsonObject metadata = QPluginLoader(QStringLiteral(PLUGIN_FILE)).metaData();
    QCOMPARE(metadata.value("MetaData"_L1).toObject(), ownMetadata());
}

void tst_PluginFile::metadataIsReadWithoutLoadingTheCode()
{
    const QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    QVERIFY(!loader.metaData().isEmpty());
    QVERIFY(!loader.isLoaded());
}

void tst_PluginFile::metadataAppearsInTheTool()
{
    const QString output =
        run(QStringLiteral(QTPLUGININFO), {u"--full-json"_s, QStringLiteral(PLUGIN_FILE)});
    const QJsonObject metadata = QJsonDocument::fromJson(output.toUtf8()).object();
    QCOMPARE(metadata.value("IID"_L1).toString(), u"com.ZENTARO.UIFramework.PluginInterface"_s);
    QCOMPARE(metadata.value("className"_L1).toString(), u"PluginSystemMonitor"_s);
    QCOMPARE(metadata.value("MetaData"_L1).toObject(), ownMetadata());
}

void tst_PluginFile::onlyTheEntryPointsAreExported()
{
    const QString output =
        run(QStringLiteral(NM), {u"--dynamic"_s, u"--defined-only"_s, u"--format=just-symbols"_s,
                                 QStringLiteral(PLUGIN_FILE)});
    QStringList symbols = output.split(u'\n', Qt::SkipEmptyParts);
    symbols.sort();
    QCOMPARE(symbols, QStringList({u"qt_plugin_instance"_s, u"qt_plugin_query_metadata_v2"_s}));
}

void tst_PluginFile::sameObjectComesTwice()
{
    const LoadedPlugin first(QStringLiteral(PLUGIN_FILE));
    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    QCOMPARE(loader.instance(), first.object());
    QCOMPARE(loader.instance(), first.object());
}

void tst_PluginFile::objectHasNoParent()
{
    QVERIFY(!LoadedPlugin(QStringLiteral(PLUGIN_FILE)).object()->parent());
}

void tst_PluginFile::newObjectComesAfterDestruction()
{
    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    const QPointer<QObject> first = loader.instance();
    first->setObjectName(u"first"_s);
    delete first.data();

    const LoadedPlugin second(QStringLiteral(PLUGIN_FILE));
    QVERIFY(second.object());
    QCOMPARE(second.object()->objectName(), QString());
}

void tst_PluginFile::entryPointGivesTheLoadersObject()
{
    const LoadedPlugin first(QStringLiteral(PLUGIN_FILE));
    const auto instance = reinterpret_cast<QObject *(*)()>(
        QLibrary(QStringLiteral(PLUGIN_FILE)).resolve("qt_plugin_instance"));
    QVERIFY(instance);
    QCOMPARE(instance(), first.object());
    QCOMPARE(instance(), first.object());
}

QTEST_GUILESS_MAIN(tst_PluginFile)
#include "tst_PluginFile.moc"
