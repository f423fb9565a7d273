#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// A server near its capacity.
class tst_Capacity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void warningPassesNameAndPercentageOn_data();
    void warningPassesNameAndPercentageOn();
    void otherDataIsDropped_data();
    void otherDataIsDropped();
    void everyEventWarns();
    void warningAddsNoError();
};

namespace {

const QString Event = u"ServerReachingLimited"_s;

QVariant server(const QVariant &name, const QVariant &percentage)
{
    return QVariantMap{{u"serverName"_s, name}, {u"virtualSizePercentage"_s, percentage}};
}

} // namespace

void tst_Capacity::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Capacity::warningPassesNameAndPercentageOn_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("line");
    const auto line = [](const char *arguments) {
        return u"notifyServerReachingLimited(%1)"_s.arg(QString::fromUtf8(arguments));
    };
    QTest::newRow("usual") << server(u"Main"_s, 91.25) << line(R"("Main", 91.25)");
    QTest::newRow("whole number") << server(u"Main"_s, 90) << line(R"("Main", 90.0)");
    QTest::newRow("not rounded") << server(u"Main"_s, 33.333333333)
                                 << line(R"("Main", 33.333333333)");
    QTest::newRow("over a hundred") << server(u"Main"_s, 250.5) << line(R"("Main", 250.5)");
    QTest::newRow("negative") << server(u"Main"_s, -1.5) << line(R"("Main", -1.5)");
    QTest::newRow("text") << server(u"Main"_s, u"12.5"_s) << line(R"("Main", 12.5)");
    QTest::newRow("no number") << server(u"Main"_s, u"much"_s) << line(R"("Main", 0.0)");
    QTest::newRow("no percentage")
        << QVariant(QVariantMap{{u"serverName"_s, u"Main"_s}}) << line(R"("Main", 0.0)");
    QTest::newRow("no name") << QVariant(QVariantMap{{u"virtualSizePercentage"_s, 5.5}})
                             << line(R"("", 5.5)");
    QTest::newRow("empty map") << QVariant(QVariantMap()) << line(R"("", 0.0)");
    QTest::newRow("other script") << server(u"サーバー"_s, 1.5) << line(R"("サーバー", 1.5)");
}

void tst_Capacity::warningPassesNameAndPercentageOn()
{
    QFETCH(const QVariant, data);
    QFETCH(const QString, line);
    TestHost host;
    host.event(Event, data);
    QCOMPARE(host.log.take(), QStringList{line});
}

void tst_Capacity::otherDataIsDropped_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("text") << QVariant(u"Main"_s);
    QTest::newRow("list") << QVariant(QVariantList{u"Main"_s, 90.0});
    QTest::newRow("hash") << QVariant(
        QVariantHash{{u"serverName"_s, u"Main"_s}, {u"virtualSizePercentage"_s, 90.0}});
    QTest::newRow("map of texts") << QVariant::fromValue(
        QMap<QString, QString>{{u"serverName"_s, u"Main"_s}});
    QTest::newRow("number") << QVariant(90.0);
}

void tst_Capacity::otherDataIsDropped()
{
    QFETCH(const QVariant, data);
    TestHost host;
    host.event(Event, data);
    QCOMPARE(host.log.take(), QStringList());
}

void tst_Capacity::everyEventWarns()
{
    TestHost host;
    host.event(Event, server(u"Main"_s, 90.5));
    host.event(Event, server(u"Main"_s, 90.5));
    const QString line = u"notifyServerReachingLimited(\"Main\", 90.5)"_s;
    QCOMPARE(host.log.take(), QStringList({line, line}));
}

void tst_Capacity::warningAddsNoError()
{
    TestHost host;
    host.event(Event, server(u"Main"_s, 99.5), u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList());
}

QTEST_GUILESS_MAIN(tst_Capacity)
#include "tst_Capacity.moc"
