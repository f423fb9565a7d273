#include "NetworkCounters.h"

#include <QTest>

namespace {

QStringList printed(const std::vector<InterfaceCounters> &all)
{
    QStringList lines;
    for (const InterfaceCounters &one : all) {
        lines.append(QStringLiteral("%1 %2 %3 %4")
                         .arg(one.name)
                         .arg(one.receivedBytes)
                         .arg(one.sentBytes)
                         .arg(one.speed ? QString::number(*one.speed) : QStringLiteral("?")));
    }
    return lines;
}

} // namespace

class tst_NetworkCounters_Linux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsRecordedTrees_data();
    void readsRecordedTrees();
    void readsThisMachine();
};

void tst_NetworkCounters_Linux::readsRecordedTrees_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("interfaces that are up, with or without a speed")
        << QStringLiteral("office")
        << QStringList({QStringLiteral("enp3s0 9876543210 1234567890 2500"),
                        QStringLiteral("wlp2s0 56681468 69838 ?"),
                        QStringLiteral("tun0 1000 2000 10")});
    QTest::newRow("lines that make no sense are left out")
        << QStringLiteral("malformed")
        << QStringList(
               {QStringLiteral("good0 1 2 ?"), QStringLiteral("last0 18446744073709551615 3 ?")});
    QTest::newRow("nothing recorded") << QStringLiteral("empty") << QStringList();
    QTest::newRow("no tree") << QStringLiteral("nowhere") << QStringList();
}

void tst_NetworkCounters_Linux::readsRecordedTrees()
{
    QFETCH(QString, tree);
    const QString root = QFINDTESTDATA("data/network") + u'/' + tree;
    QTEST(printed(NetworkCounters(root).read()), "expected");
}

void tst_NetworkCounters_Linux::readsThisMachine()
{
    const NetworkCounters counters;
    const std::vector<InterfaceCounters> before = counters.read();
    const std::vector<InterfaceCounters> after = counters.read();
    QCOMPARE(before.size(), after.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        QCOMPARE(after.at(i).name, before.at(i).name);
        QVERIFY(after.at(i).receivedBytes >= before.at(i).receivedBytes);
        QVERIFY(after.at(i).name != QStringLiteral("lo"));
    }
}

QTEST_GUILESS_MAIN(tst_NetworkCounters_Linux)
#include "tst_NetworkCounters_Linux.moc"
