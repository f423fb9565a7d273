#include "TestHost.h"

#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <memory>

/// The example page on the built plug-in.
class tst_ErrorBoard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsTheErrorsNewestFirst();
    void focusesAStationAndShowsItsUsage();
    void snoozesTheNewestDisconnection();
    void showsNamesAsTheyAre();
    void withoutADisconnectionThereIsNothingToSnooze();

private:
    QQuickItem *item(const char *name) const;
    QStringList texts(const QString &part) const;
    QList<int> formats(const QString &part) const;

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QQuickView> m_view;
};

void tst_ErrorBoard::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_host = std::make_unique<TestHost>();
    QStandardItem *station =
        m_host->topologyModel.addStation(QStringLiteral("st1"), QStringLiteral("Lobby"));
    TopologyModel::addCamera(station, QStringLiteral("st1/c1"), QStringLiteral("Door"));
    m_view = std::make_unique<QQuickView>();
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->setInitialProperties({{QStringLiteral("plugin"), QVariant::fromValue(m_host->object())},
                                  {QStringLiteral("siteName"), QStringLiteral("Harbour")},
                                  {QStringLiteral("serverConnected"), true}});
    m_view->setSource(QUrl::fromLocalFile(QStringLiteral(ERROR_BOARD)));
    m_view->resize(600, 500);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void tst_ErrorBoard::cleanup()
{
    m_view.reset();
    m_host.reset();
}

QQuickItem *tst_ErrorBoard::item(const char *name) const
{
    return m_view->rootObject()->findChild<QQuickItem *>(QString::fromLatin1(name));
}

// The ways in which the texts that contain a part are read, Qt::PlainText or another.
QList<int> tst_ErrorBoard::formats(const QString &part) const
{
    QList<int> found;
    QList<QQuickItem *> items{m_view->rootObject()};
    while (!items.isEmpty()) {
        const QQuickItem *item = items.takeFirst();
        const QVariant format = item->property("textFormat");
        if (format.isValid() && item->property("text").toString().contains(part))
            found.append(format.toInt());
        items += item->childItems();
    }
    return found;
}

// Those of the visible texts that contain a part.
QStringList tst_ErrorBoard::texts(const QString &part) const
{
    QStringList found;
    QList<QQuickItem *> items{m_view->rootObject()};
    while (!items.isEmpty()) {
        const QQuickItem *item = items.takeFirst();
        const QString text = item->property("text").toString();
        if (text.contains(part))
            found.append(text);
        items += item->childItems();
    }
    return found;
}

void tst_ErrorBoard::listsTheErrorsNewestFirst()
{
    m_host->invoke("monitorNodeStatus", 1, QStringLiteral("st1"), false);
    QTest::qWait(2);
    m_host->invoke("monitorNodeStatus", 0, QStringLiteral("st1/c1"), false);
    QTRY_COMPARE(texts(QStringLiteral("disconnected: ")).size(), 2);
    QCOMPARE(item("errors")->property("count").toInt(), 2);
    const QString newest = texts(QStringLiteral("Camera disconnected: ")).value(0);
    QVERIFY2(newest.endsWith(QStringLiteral("Station: Lobby / Camera: Door")), qPrintable(newest));
    m_host->invoke("monitorNodeStatus", 0, QStringLiteral("st1/c1"), true);
    QTRY_COMPARE(texts(QStringLiteral("Camera disconnected: ")), QStringList());
}

void tst_ErrorBoard::focusesAStationAndShowsItsUsage()
{
    m_host->invoke("monitorCPUUsage", QStringLiteral("st1"), 95);
    m_host->invoke("updateStationErrorNumber");
    QTRY_VERIFY(!texts(QStringLiteral("st1: 1")).isEmpty());
    m_host->object()->setProperty("focusStationResource", QStringLiteral("st1"));
    m_host->event(
        QStringLiteral("SystemResChanged"),
        QVariantMap{{QStringLiteral("cpuPercentage"), 42}, {QStringLiteral("memPercentage"), 17}},
        QStringLiteral("st1"));
    QTRY_VERIFY(!texts(QStringLiteral("CPU usage  42%")).isEmpty());
}

void tst_ErrorBoard::snoozesTheNewestDisconnection()
{
    m_host->invoke("monitorCPUUsage", QStringLiteral("st1"), 95);
    m_host->invoke("monitorNodeStatus", 0, QStringLiteral("st1/c1"), false);
    m_host->framework.forgetCommands();
    QMetaObject::invokeMethod(item("snooze"), "clicked");
    QCOMPARE(m_host->framework.commands().size(), 1);
    const SentCommand command = m_host->framework.commands().at(0);
    QCOMPARE(command.command, QStringLiteral("setSnooze"));
    QCOMPARE(command.data.toMap().value(QStringLiteral("nodeID")).toString(),
             QStringLiteral("st1/c1"));
    QCOMPARE(m_view->rootObject()->property("answer").toString(), QStringLiteral("asked"));
    m_host->respond(QStringLiteral("setSnooze"), command.data);
    QCOMPARE(m_view->rootObject()->property("answer").toString(), QStringLiteral("snoozed"));
    m_host->event(QStringLiteral("SnoozeError"), command.data);
    QCOMPARE(item("errors")->property("count").toInt(), 1);
}

void tst_ErrorBoard::showsNamesAsTheyAre()
{
    const QString markup = QStringLiteral("<b>");
    m_view->rootObject()->setProperty("siteName", QStringLiteral("<b>Harbour</b>"));
    m_host->topologyModel.addStation(QStringLiteral("<b>st</b>"), QStringLiteral("<b>Quay</b>"));
    m_host->object()->setProperty("focusStationResource", QStringLiteral("<b>st</b>"));
    m_host->event(
        QStringLiteral("SystemResChanged"),
        QVariantMap{{QStringLiteral("cpuPercentage"), 95},
                    {QStringLiteral("memPercentage"), 17},
                    {QStringLiteral("networkUsageList"),
                     QVariantList{QVariantMap{
                         {QStringLiteral("networkInterface"), QStringLiteral("<b>eth</b>")},
                         {QStringLiteral("networkPercentage"), 1},
                         {QStringLiteral("networkBandwidth"), 1000}}}}},
        QStringLiteral("<b>st</b>"));
    m_host->invoke("updateStationErrorNumber");
    // The site, the station's button, its error and its interface.
    QTRY_COMPARE(formats(markup).size(), 4);
    QCOMPARE(formats(markup), QList<int>(4, Qt::PlainText));
}

void tst_ErrorBoard::withoutADisconnectionThereIsNothingToSnooze()
{
    m_host->invoke("monitorCPUUsage", QStringLiteral("st1"), 95);
    m_host->framework.forgetCommands();
    QMetaObject::invokeMethod(item("snooze"), "clicked");
    QVERIFY(m_host->framework.commands().isEmpty());
}

QTEST_MAIN(tst_ErrorBoard)
#include "tst_ErrorBoard.moc"
