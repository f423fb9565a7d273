// Draws the dashboard in each of its states and saves the pictures into the folder that is named on
// the command line. Fails when a picture cannot be made or the QML engine warns.

#include "FakeFiles.h"
#include "FakeLog.h"
#include "FakePlugin.h"
#include "SampleSite.h"

#include <QDateTime>
#include <QDir>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QTranslator>
#include <functional>
#include <string_view>

Q_IMPORT_QML_PLUGIN(DashboardPlugin)

namespace {

struct Scene
{
    QString name;
    QSize size{1280, 800};
    bool dark = true;
    QString language = QStringLiteral("en");
    double fontScale = 1;
    bool connected = true;
    /// Whether every station is connected.
    bool well = false;
    /// Whether the host knows the states of the stations and cameras.
    bool statesKnown = true;
    /// Whether the host offers the operational log and the server's snoozes.
    bool offers = true;
    /// What happens before the picture is taken.
    std::function<void(QQuickView &, FakePlugin &)> act = [](QQuickView &, FakePlugin &) {};
};

/// Of the pictures: quick to save, and still small.
constexpr int LightCompression = 80;

/// What the dashboard needs to take over a list of snoozes.
constexpr int SettlingMs = 150;

/// After which a hint is there.
constexpr int HintDelayMs = 800;

bool warned = false;

void failOnWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    warned = warned || type != QtDebugMsg;
    fprintf(stderr, "%s\n", qPrintable(message));
}

void fill(QQuickView &, FakePlugin &plugin)
{
    SampleSite::fillErrors(plugin);
    SampleSite::fillUsage(plugin);
    SampleSite::fillClient(plugin);
}

void fillAndWarn(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    Q_EMIT plugin.notifyServerReachingLimited(QStringLiteral("Recording server 2"), 93.4);
}

void fillAndWarnOfMany(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    for (int i = 1; i <= 9; ++i)
        Q_EMIT plugin.notifyServerReachingLimited(QStringLiteral("Recording server %1").arg(i),
                                                  90.0 + i);
    QTest::keyClick(&view, Qt::Key_Down);
}

void searchFor(QQuickView &view, std::string_view text)
{
    QTest::keyClick(&view, Qt::Key_F, Qt::ControlModifier);
    for (const char letter : text)
        QTest::keyClick(&view, letter);
    QTest::keyClick(&view, Qt::Key_Return);
}

void fillAndFilterAway(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    searchFor(view, "gate 9");
}

void fillAndSelect(QQuickView &view, FakePlugin &plugin)
{
    fillAndWarn(view, plugin);
    QTest::keyClick(&view, Qt::Key_Down);
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
}

void fillAndOpenMenu(QQuickView &view, FakePlugin &plugin)
{
    fillAndSelect(view, plugin);
    QTest::keyClick(&view, Qt::Key_S);
    QTest::keyClick(&view, Qt::Key_Down);
}

void fillAndRestOnALongName(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    plugin.addError(3, QStringLiteral("quay"), QStringLiteral("quay/long"),
                    {QStringLiteral("Quay NVR"),
                     QStringLiteral("Berth 12, behind the second crane, looking at the gate")},
                    SampleSite::now() - 500);
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Home);
    QTest::qWait(HintDelayMs);
}

void fillAndAskMoment(QQuickView &view, FakePlugin &plugin)
{
    fillAndOpenMenu(view, plugin);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Return);
}

void fillAndSnooze(QQuickView &view, FakePlugin &plugin)
{
    fillAndOpenMenu(view, plugin);
    QTest::keyClick(&view, Qt::Key_Return);
    Q_EMIT plugin.setSnoozeResponse(false);
}

void fillAndShowUsage(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Return);
}

void turnTo(QQuickView &view, const char *key)
{
    QMetaObject::invokeMethod(view.rootObject(), "show", Q_ARG(QString, QString::fromLatin1(key)));
}

void fillAndShowStations(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    turnTo(view, "stations");
}

void snoozeEverything(QQuickView &view, FakePlugin &plugin)
{
    SampleSite::fillClient(plugin);
    view.rootObject()->setProperty("snoozes", SampleSite::snoozes(4));
}

void fillAndShowSnoozes(QQuickView &view, FakePlugin &plugin)
{
    fillAndOpenMenu(view, plugin);
    QTest::keyClick(&view, Qt::Key_Return);
    turnTo(view, "snoozed");
    if (view.rootObject()->property("snoozes").isValid()) {
        view.rootObject()->setProperty("snoozes", SampleSite::snoozes(5));
        QTest::qWait(SettlingMs);
        view.rootObject()->setProperty("snoozes", SampleSite::snoozes(4));
        SampleSite::endSnooze(plugin);
    }
    QTest::keyClick(&view, Qt::Key_Tab);
}

void fillAndShowLog(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    turnTo(view, "log");
}

void searchInVain(QQuickView &view, FakePlugin &plugin)
{
    fillAndShowLog(view, plugin);
    searchFor(view, "gate 9");
}

void fillAndExport(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    QTest::qWait(50);
    QTest::keyClick(&view, Qt::Key_E, Qt::ControlModifier);
}

void fillAndFailToExport(QQuickView &view, FakePlugin &plugin)
{
    fillAndExport(view, plugin);
    view.rootObject()->property("files").value<QObject *>()->setProperty(
        "obstacle", QStringLiteral("No space left on device"));
    QTest::keyClick(&view, Qt::Key_Return);
}

void fillWithThousands(QQuickView &view, FakePlugin &plugin)
{
    fill(view, plugin);
    plugin.addCameraErrors(20000, SampleSite::now() - 100000000);
    QTest::qWait(100);
    QTest::keyClick(&view, Qt::Key_End);
}

QList<Scene> scenes()
{
    return {
        {.name = QStringLiteral("dark"), .act = fill},
        {.name = QStringLiteral("light"), .dark = false, .act = fill},
        {.name = QStringLiteral("german"), .language = QStringLiteral("de"), .act = fillAndSelect},
        {.name = QStringLiteral("large-font"), .fontScale = 2, .act = fillAndWarn},
        {.name = QStringLiteral("small"), .size = {1024, 640}, .act = fill},
        {.name = QStringLiteral("small-german-light"),
         .size = {1024, 640},
         .dark = false,
         .language = QStringLiteral("de"),
         .act = fillAndSelect},
        {.name = QStringLiteral("small-large-font"),
         .size = {1024, 640},
         .fontScale = 2,
         .act = fill},
        {.name = QStringLiteral("small-usage"), .size = {1024, 640}, .act = fillAndShowUsage},
        {.name = QStringLiteral("small-large-font-usage"),
         .size = {1024, 640},
         .fontScale = 2,
         .act = fillAndShowUsage},
        {.name = QStringLiteral("small-large-font-stations"),
         .size = {1024, 640},
         .fontScale = 2,
         .act = fillAndShowStations},
        {.name = QStringLiteral("small-large-font-german"),
         .size = {1024, 640},
         .language = QStringLiteral("de"),
         .fontScale = 2,
         .act = fillAndSelect},
        {.name = QStringLiteral("small-large-font-german-stations"),
         .size = {1024, 640},
         .language = QStringLiteral("de"),
         .fontScale = 2,
         .act = fillAndShowStations},
        {.name = QStringLiteral("small-large-font-german-usage"),
         .size = {1024, 640},
         .language = QStringLiteral("de"),
         .fontScale = 2,
         .act = fillAndShowUsage},
        {.name = QStringLiteral("4k"), .size = {3840, 2160}, .act = fill},
        {.name = QStringLiteral("4k-large-font"),
         .size = {3840, 2160},
         .fontScale = 2,
         .act = fill},
        {.name = QStringLiteral("lost"), .connected = false},
        {.name = QStringLiteral("lost-light"), .dark = false, .connected = false},
        {.name = QStringLiteral("lost-small-large-font-german"),
         .size = {1024, 640},
         .language = QStringLiteral("de"),
         .fontScale = 2,
         .connected = false},
        {.name = QStringLiteral("all-snoozed"), .act = snoozeEverything},
        {.name = QStringLiteral("well"),
         .well = true,
         .act = [](QQuickView &, FakePlugin &plugin) { SampleSite::fillClient(plugin); }},
        {.name = QStringLiteral("states-unknown"), .well = true, .statesKnown = false},
        {.name = QStringLiteral("states-unknown-german-light"),
         .dark = false,
         .language = QStringLiteral("de"),
         .well = true,
         .statesKnown = false},
        {.name = QStringLiteral("many-warnings"), .act = fillAndWarnOfMany},
        {.name = QStringLiteral("many-warnings-german-light"),
         .dark = false,
         .language = QStringLiteral("de"),
         .act = fillAndWarnOfMany},
        {.name = QStringLiteral("filtered"), .act = fillAndFilterAway},
        {.name = QStringLiteral("hint"), .act = fillAndRestOnALongName},
        {.name = QStringLiteral("hint-light"), .dark = false, .act = fillAndRestOnALongName},
        {.name = QStringLiteral("menu"), .act = fillAndOpenMenu},
        {.name = QStringLiteral("moment"), .act = fillAndAskMoment},
        {.name = QStringLiteral("moment-small-large-font-german"),
         .size = {1024, 640},
         .language = QStringLiteral("de"),
         .fontScale = 2,
         .act = fillAndAskMoment},
        {.name = QStringLiteral("notice"), .dark = false, .act = fillAndSnooze},
        {.name = QStringLiteral("thousands"), .act = fillWithThousands},
        {.name = QStringLiteral("export"), .act = fillAndExport},
        {.name = QStringLiteral("export-failed-german-light"),
         .dark = false,
         .language = QStringLiteral("de"),
         .act = fillAndFailToExport},
        {.name = QStringLiteral("export-failed-small-large-font"),
         .size = {1024, 640},
         .fontScale = 2,
         .act = fillAndFailToExport},
        {.name = QStringLiteral("snoozed"), .act = fillAndShowSnoozes},
        {.name = QStringLiteral("snoozed-german-light"),
         .dark = false,
         .language = QStringLiteral("de"),
         .act = fillAndShowSnoozes},
        {.name = QStringLiteral("snoozed-small"), .size = {1024, 640}, .act = fillAndShowSnoozes},
        {.name = QStringLiteral("snoozed-small-large-font"),
         .size = {1024, 640},
         .fontScale = 2,
         .act = fillAndShowSnoozes},
        {.name = QStringLiteral("snoozed-small-large-font-german"),
         .size = {1024, 640},
         .language = QStringLiteral("de"),
         .fontScale = 2,
         .act = fillAndShowSnoozes},
        {.name = QStringLiteral("snoozed-untold"), .offers = false, .act = fillAndShowSnoozes},
        {.name = QStringLiteral("snoozed-lost"), .connected = false, .act = fillAndShowSnoozes},
        {.name = QStringLiteral("log"), .act = fillAndShowLog},
        {.name = QStringLiteral("log-german-light"),
         .dark = false,
         .language = QStringLiteral("de"),
         .act = fillAndShowLog},
        {.name = QStringLiteral("log-small-large-font"),
         .size = {1024, 640},
         .fontScale = 2,
         .act = fillAndShowLog},
        {.name = QStringLiteral("log-4k-large-font"),
         .size = {3840, 2160},
         .fontScale = 2,
         .act = fillAndShowLog},
        {.name = QStringLiteral("log-searched"), .act = searchInVain},
        {.name = QStringLiteral("log-missing"), .offers = false, .act = fillAndShowLog},
    };
}

/// Lets the time of the dashboard stand still at the moment of the sample.
void prepare(QQmlEngine &engine, const Scene &scene)
{
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData("import QtQml; import Dashboard\n"
                      "QtObject { function prepare(now, dark) {"
                      " Clock.running = false; Clock.now = now; Theme.dark = dark; } }",
                      QUrl());
    const std::unique_ptr<QObject> settings(component.create());
    QMetaObject::invokeMethod(settings.get(), "prepare", Q_ARG(QVariant, double(SampleSite::now())),
                              Q_ARG(QVariant, scene.dark));
}

bool draw(const Scene &scene, const QDir &folder)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(qRound(12 * scene.fontScale));
    QGuiApplication::setFont(font);
    QTranslator translator;
    if (!translator.load(QStringLiteral(":/i18n/Dashboard_%1").arg(scene.language)))
        return false;
    QCoreApplication::installTranslator(&translator);

    FakePlugin plugin;
    FakeFiles files;
    FakeLog log;
    SampleSite::fillLog(log);
    QQuickView view;
    prepare(*view.engine(), scene);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    QVariantMap properties{
        {QStringLiteral("plugin"), QVariant::fromValue<QObject *>(&plugin)},
        {QStringLiteral("siteName"), QStringLiteral("Harbour North")},
        {QStringLiteral("serverConnected"), scene.connected},
        {QStringLiteral("connectionSince"),
         QDateTime::fromMSecsSinceEpoch(SampleSite::now() - 300'000)},
        {QStringLiteral("stations"), SampleSite::stations(scene.well)},
        {QStringLiteral("files"), QVariant::fromValue<QObject *>(&files)},
    };
    if (!scene.connected) {
        properties.insert(QStringLiteral("connectionFailure"),
                          QStringLiteral("Connection refused"));
        properties.insert(QStringLiteral("nextAttempt"),
                          QDateTime::fromMSecsSinceEpoch(SampleSite::now() + 12'000));
    }
    if (scene.statesKnown) {
        properties.insert(QStringLiteral("statesSince"),
                          QDateTime::fromMSecsSinceEpoch(SampleSite::now() - 300'000));
    }
    if (scene.offers) {
        properties.insert(QStringLiteral("operationalLog"), QVariant::fromValue<QObject *>(&log));
        properties.insert(QStringLiteral("snoozes"), QVariantList());
    }
    view.setInitialProperties(properties);
    view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Dashboard/DashboardView.qml")));
    view.resize(scene.size);
    view.show();
    view.requestActivate();
    if (!QTest::qWaitForWindowActive(&view))
        return false;
    scene.act(view, plugin);
    QTest::qWait(200);
    return view.grabWindow().save(folder.filePath(scene.name + QStringLiteral(".png")), nullptr,
                                  LightCompression);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("TZ", "Europe/Berlin");
    QGuiApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() < 2) {
        fprintf(stderr, "usage: %s FOLDER [SCENE...]\n", argv[0]);
        return 2;
    }
    const QDir folder(arguments.at(1));
    folder.mkpath(QStringLiteral("."));
    qInstallMessageHandler(failOnWarnings);
    const QStringList wanted = arguments.mid(2);
    bool drawn = true;
    for (const Scene &scene : scenes()) {
        if (wanted.isEmpty() || wanted.contains(scene.name))
            drawn = draw(scene, folder) && drawn;
    }
    return drawn && !warned ? 0 : 1;
}
