#include "EnvironmentThresholds.h"

#include <QRegularExpression>
#include <QTest>

class tst_EnvironmentThresholds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { setThresholdsOfEnvironment({}); }

    void thoseThatAreNotSetAreLeftOut();
    void readsTheTextsThatAreSet();
    void writesWhatItHasRead();
    void unsetsTheOthers();
    void leavesOtherVariablesAlone();
};

void tst_EnvironmentThresholds::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    setThresholdsOfEnvironment({});
}

void tst_EnvironmentThresholds::thoseThatAreNotSetAreLeftOut()
{
    QCOMPARE(thresholdsOfEnvironment(), QJsonObject());
}

// An empty one is not the same as none: what it means is for the plug-in to say.
void tst_EnvironmentThresholds::readsTheTextsThatAreSet()
{
    qputenv("TALO2_HIGH_CPU_USAGE", "80");
    qputenv("TALO2_HIGH_MEM_USAGE", "");
    qputenv("TALO2_HIGH_NET_USAGE", "half");
    const QJsonObject expected{{QStringLiteral("TALO2_HIGH_CPU_USAGE"), QStringLiteral("80")},
                               {QStringLiteral("TALO2_HIGH_MEM_USAGE"), QString()},
                               {QStringLiteral("TALO2_HIGH_NET_USAGE"), QStringLiteral("half")}};
    QCOMPARE(thresholdsOfEnvironment(), expected);
}

void tst_EnvironmentThresholds::writesWhatItHasRead()
{
    const QJsonObject thresholds{{QStringLiteral("TALO2_HIGH_CPU_USAGE"), QStringLiteral("70.5")},
                                 {QStringLiteral("TALO2_HIGH_NET_USAGE"), QString()}};
    setThresholdsOfEnvironment(thresholds);
    QCOMPARE(qgetenv("TALO2_HIGH_CPU_USAGE"), QByteArray("70.5"));
    QCOMPARE(thresholdsOfEnvironment(), thresholds);
}

void tst_EnvironmentThresholds::unsetsTheOthers()
{
    qputenv("TALO2_HIGH_CPU_USAGE", "80");
    qputenv("TALO2_HIGH_MEM_USAGE", "80");
    // A number is nothing that was read from an environment.
    setThresholdsOfEnvironment({{QStringLiteral("TALO2_HIGH_MEM_USAGE"), 90}});
    QVERIFY(!qEnvironmentVariableIsSet("TALO2_HIGH_CPU_USAGE"));
    QVERIFY(!qEnvironmentVariableIsSet("TALO2_HIGH_MEM_USAGE"));
}

void tst_EnvironmentThresholds::leavesOtherVariablesAlone()
{
    qputenv("TST_OTHER", "1");
    setThresholdsOfEnvironment({{QStringLiteral("TST_OTHER"), QStringLiteral("2")}});
    QCOMPARE(qgetenv("TST_OTHER"), QByteArray("1"));
    qunsetenv("TST_OTHER");
}

QTEST_GUILESS_MAIN(tst_EnvironmentThresholds)
#include "tst_EnvironmentThresholds.moc"
