#include "StormReader.h"

#include "InputFailure.h"
#include "JsonObject.h"
#include "TestSite.h"
#include "TextFile.h"

#include <QRandomGenerator>
#include <QTest>

class tst_StormReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stormMayMakeAsManyChangesAsAreLeft_data();
    void stormMayMakeAsManyChangesAsAreLeft();
};

void tst_StormReader::stormMayMakeAsManyChangesAsAreLeft_data()
{
    QTest::addColumn<QByteArray>("event");
    QTest::addColumn<int>("changes");
    QTest::addColumn<QString>("message");
    const QByteArray flapping = R"({"change": "flap", "rate": 10, "seconds": 2})";
    const QByteArray down = R"({"change": "down", "station": "north", "cameras": 3})";
    QTest::newRow("flapping") << flapping << 20
                              << QStringLiteral("FILE: rate: expected at most 19 changes in all, "
                                                "found 20");
    QTest::newRow("down") << down << 3
                          << QStringLiteral("FILE: cameras: expected at most 2 changes in all, "
                                            "found 3");
}

void tst_StormReader::stormMayMakeAsManyChangesAsAreLeft()
{
    QFETCH(const QByteArray, event);
    QFETCH(const int, changes);
    QFETCH(const QString, message);
    const TextFile file(event);
    QRandomGenerator chance(1);
    JsonObject accepted = JsonObject::fromFile(file.path());
    QCOMPARE(readStorm(accepted, testSite(), chance, changes).changeCount, changes);

    JsonObject refused = JsonObject::fromFile(file.path());
    QCOMPARE(
        inputFailure(file.path(), [&] { readStorm(refused, testSite(), chance, changes - 1); }),
        message);
}

QTEST_GUILESS_MAIN(tst_StormReader)
#include "tst_StormReader.moc"
