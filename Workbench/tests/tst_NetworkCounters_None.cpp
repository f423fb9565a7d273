#include "NetworkCounters.h"

#include <QTest>

class tst_NetworkCounters_None : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void thereAreNoInterfaces_data();
    void thereAreNoInterfaces();
};

void tst_NetworkCounters_None::thereAreNoInterfaces_data()
{
    QTest::addColumn<QString>("root");
    QTest::newRow("on this machine") << QStringLiteral("/");
    QTest::newRow("in a recorded tree") << QFINDTESTDATA("data/network/office");
}

void tst_NetworkCounters_None::thereAreNoInterfaces()
{
    QFETCH(const QString, root);
    QVERIFY(NetworkCounters(root).read().empty());
}

QTEST_APPLESS_MAIN(tst_NetworkCounters_None)
#include "tst_NetworkCounters_None.moc"
