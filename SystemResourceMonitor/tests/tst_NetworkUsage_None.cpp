#include "NetworkUsage_None.h"

#include <QTest>

class tst_NetworkUsage_None : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void thereAreNoInterfaces();
    void anyInterfaceIsUnused_data();
    void anyInterfaceIsUnused();
};

void tst_NetworkUsage_None::thereAreNoInterfaces()
{
    NetworkUsage_None sampler;
    QCOMPARE(sampler.getInterfaceNameList(), QStringList());
}

void tst_NetworkUsage_None::anyInterfaceIsUnused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a name") << QStringLiteral("eth0");
    QTest::newRow("an empty name") << QString();
}

void tst_NetworkUsage_None::anyInterfaceIsUnused()
{
    QFETCH(const QString, name);
    NetworkUsage_None sampler;
    const NetworkInfo info = sampler.getNetworkInfo(name);
    QCOMPARE(info.percentage, 0.0);
    QCOMPARE(info.bandwidth, 0.0);
}

QTEST_APPLESS_MAIN(tst_NetworkUsage_None)
#include "tst_NetworkUsage_None.moc"
