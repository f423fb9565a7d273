#include "OperationalLogPlugin.h"

#include "OperationalLogStore.h"
#include "VirtualClock.h"

#include <QSignalSpy>
#include <QTest>

class tst_OperationalLogPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesWhatIsGivenByName();
};

void tst_OperationalLogPlugin::writesWhatIsGivenByName()
{
    const QVariantList parameters{
        QVariantMap{{QStringLiteral("param"), QStringLiteral("Camera disconnected")}},
        QVariantMap{{QStringLiteral("param"), QStringLiteral("Station: N / Camera: C")}},
        QVariantMap{}};
    VirtualClock clock;
    OperationalLogStore log{QString()};
    OperationalLogPlugin plugin(log, clock);
    const QSignalSpy added(&plugin, &OperationalLogPlugin::entryAdded);

    bool isWritten = false;
    QVERIFY(QMetaObject::invokeMethod(
        &plugin, "addOperationalLog", Qt::DirectConnection, Q_RETURN_ARG(bool, isWritten),
        Q_ARG(QString, QStringLiteral("AddDashboardSnooze")), Q_ARG(QVariantList, parameters)));
    QVERIFY(isWritten);

    const OperationalLogEntry entry = log.newest(1).at(0);
    const QVariantList values{QStringLiteral("Camera disconnected"),
                              QStringLiteral("Station: N / Camera: C"), QVariant()};
    QCOMPARE(entry.name, QStringLiteral("AddDashboardSnooze"));
    QCOMPARE(entry.time.toMSecsSinceEpoch(), clock.nowMs());
    QCOMPARE(entry.parameters.size(), 3);
    QCOMPARE(entry.parameters.mid(0, 2), values.mid(0, 2));
    QVERIFY(entry.parameters.at(2).isNull());
    QCOMPARE(added.size(), 1);
    QCOMPARE(added.at(0).at(1).toList(), values);
}

QTEST_GUILESS_MAIN(tst_OperationalLogPlugin)
#include "tst_OperationalLogPlugin.moc"
