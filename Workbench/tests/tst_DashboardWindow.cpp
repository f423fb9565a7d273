#include "DashboardWindow.h"

#include "InputFailure.h"
#include "TextFile.h"

#include <QDateTime>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

QUrl testFile(const QString &name)
{
    return QUrl::fromLocalFile(QFINDTESTDATA("data/") + name);
}

} // namespace

class tst_DashboardWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void handsOverPluginAndSite();
    void dashboardFillsTheWindow();
    void tellsOfTheConnection();
    void tellsTheServersTime();
    void tellsOfTheStations();
    void tellsOfTheSnoozes();
    void handsOverWhatWritesFiles();
    void handsOverTheClipboard();
    void handsOverWhatReadsTheLog();
    void coloursAreSetAndHeardOf();
    void sizeIsSetAndHeardOf();
    void savesWhatIsShown();
    void tellsWhenThePictureCannotBeWritten();
    void pagesAreFiles();
    void pageThatCannotBeCompiledIsRefusedAtItsPlace();
    void pageThatCannotBeCreatedIsRefused();
};

void tst_DashboardWindow::handsOverPluginAndSite()
{
    QQmlEngine engine;
    QObject plugin;
    const DashboardWindow window(engine, plugin, QStringLiteral("Harbour"),
                                 testFile(QStringLiteral("Dashboard.qml")));
    QCOMPARE(window.rootObject()->property("plugin").value<QObject *>(), &plugin);
    QCOMPARE(window.rootObject()->property("siteName").toString(), QStringLiteral("Harbour"));
    QVERIFY(window.title().contains(QStringLiteral("Harbour")));
}

void tst_DashboardWindow::dashboardFillsTheWindow()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    QCOMPARE(window.size(), QSize(1280, 800));
    QCOMPARE(window.minimumSize(), QSize(1024, 640));
    window.show();
    window.resize(1600, 900);
    QTRY_COMPARE(window.rootObject()->size(), QSizeF(1600, 900));
}

void tst_DashboardWindow::tellsOfTheConnection()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    const QDateTime since = QDateTime::fromMSecsSinceEpoch(1'780'660'800'000);
    window.setConnection(true, since);
    QCOMPARE(window.rootObject()->property("serverConnected").toBool(), true);
    QCOMPARE(window.rootObject()->property("connectionSince").toDateTime(), since);
    window.setConnection(false, since);
    QCOMPARE(window.rootObject()->property("serverConnected").toBool(), false);
}

void tst_DashboardWindow::tellsTheServersTime()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    const qint64 serverMs = 1'780'660'800'000;
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    window.setServerTime(serverMs, 60);
    const qint64 after = QDateTime::currentMSecsSinceEpoch();
    const double rate = window.rootObject()->property("serverRate").toDouble();
    const double offset = window.rootObject()->property("serverOffset").toDouble();
    QCOMPARE(rate, 60.0);
    QVERIFY(static_cast<double>(before) * rate + offset <= static_cast<double>(serverMs));
    QVERIFY(static_cast<double>(after) * rate + offset >= static_cast<double>(serverMs));
}

void tst_DashboardWindow::tellsOfTheStations()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    const QVariantList stations{QVariantMap{{QStringLiteral("stationID"), QStringLiteral("st")}}};
    window.setStations(stations);
    QCOMPARE(window.rootObject()->property("stations").toList(), stations);
}

void tst_DashboardWindow::tellsOfTheSnoozes()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    const QVariantList snoozes{QVariantMap{{QStringLiteral("nodeID"), QStringLiteral("st")}}};
    window.setSnoozes(snoozes);
    QCOMPARE(window.rootObject()->property("snoozes").toList(), snoozes);
}

void tst_DashboardWindow::handsOverTheClipboard()
{
    QQmlEngine engine;
    QObject plugin;
    const DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    QVERIFY(qobject_cast<SystemClipboard *>(
        window.rootObject()->property("clipboard").value<QObject *>()));
}

void tst_DashboardWindow::handsOverWhatReadsTheLog()
{
    QQmlEngine engine;
    QObject plugin;
    QObject log;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    window.setOperationalLog(log);
    QCOMPARE(window.rootObject()->property("operationalLog").value<QObject *>(), &log);
}

void tst_DashboardWindow::coloursAreSetAndHeardOf()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    const QSignalSpy changes(&window, &DashboardWindow::darkChanged);
    window.setDark(false);
    QCOMPARE(window.rootObject()->property("dark").toBool(), false);
    window.rootObject()->setProperty("dark", true);
    QCOMPARE(changes, QList<QVariantList>({{false}, {true}}));
}

void tst_DashboardWindow::sizeIsSetAndHeardOf()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    const QSignalSpy changes(&window, &DashboardWindow::zoomChanged);
    window.setZoom(2);
    QCOMPARE(window.rootObject()->property("zoom").toDouble(), 2.0);
    window.rootObject()->setProperty("zoom", 1.5);
    QCOMPARE(changes, QList<QVariantList>({{2.0}, {1.5}}));
}

void tst_DashboardWindow::handsOverWhatWritesFiles()
{
    QQmlEngine engine;
    QObject plugin;
    QObject files;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    window.setFiles(files);
    QCOMPARE(window.rootObject()->property("files").value<QObject *>(), &files);
}

void tst_DashboardWindow::savesWhatIsShown()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.setConnection(true, {});
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("new/folder/picture.png"));
    QVERIFY(window.saveImage(file));
    const QImage image(file);
    QCOMPARE(image.size(), QSize(1280, 800));
    QCOMPARE(image.pixelColor(100, 100), QColor(0, 255, 0));
    QCOMPARE(image.pixelColor(1200, 100), QColor(255, 255, 255));
}

void tst_DashboardWindow::tellsWhenThePictureCannotBeWritten()
{
    QQmlEngine engine;
    QObject plugin;
    DashboardWindow window(engine, plugin, {}, testFile(QStringLiteral("Dashboard.qml")));
    window.show();
    const QTemporaryDir directory;
    QVERIFY(!window.saveImage(directory.filePath(QStringLiteral("picture.unknown"))));
    const TextFile file("text", QStringLiteral("file"));
    QVERIFY(!window.saveImage(file.path() + QStringLiteral("/picture.png")));
}

void tst_DashboardWindow::pagesAreFiles()
{
    QCOMPARE(DashboardWindow::pageUrl({}), DashboardWindow::dashboardUrl());
    const QString file = testFile(QStringLiteral("Dashboard.qml")).toLocalFile();
    QCOMPARE(DashboardWindow::pageUrl(QDir::current().relativeFilePath(file)),
             testFile(QStringLiteral("Dashboard.qml")));
}

void tst_DashboardWindow::pageThatCannotBeCompiledIsRefusedAtItsPlace()
{
    QQmlEngine engine;
    const QUrl page = testFile(QStringLiteral("Broken.qml"));
    QCOMPARE(inputFailure(page.toLocalFile(),
                          [&engine, &page] { DashboardWindow::expectLoadable(engine, page); }),
             QStringLiteral("FILE: line 1, column 31: Expected token `:'"));
    DashboardWindow::expectLoadable(engine, testFile(QStringLiteral("Dashboard.qml")));
}

void tst_DashboardWindow::pageThatCannotBeCreatedIsRefused()
{
    const TextFile page("import QtQml\nQtObject { property var plugin; property string siteName }",
                        QStringLiteral("Page.qml"));
    QQmlEngine engine;
    QObject plugin;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("root object")));
    const QString message = inputFailure(page.path(), [&engine, &plugin, &page] {
        const DashboardWindow window(engine, plugin, {}, DashboardWindow::pageUrl(page.path()));
    });
    QVERIFY2(message.startsWith(QStringLiteral("FILE: ")), qPrintable(message));
}

QTEST_MAIN(tst_DashboardWindow)
#include "tst_DashboardWindow.moc"
