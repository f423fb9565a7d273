#include "UsageKeys.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_UsageKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void stationOfAKeyMayHoldAnError_data();
    void stationOfAKeyMayHoldAnError();
    void otherStationHoldsNone_data();
    void otherStationHoldsNone();
    void keyOfAnotherErrorIsPassedOver_data();
    void keyOfAnotherErrorIsPassedOver();
    void stationHoldsNoneOnceAllItsKeysAreGone();
    void answerFollowsEachChange();
    void removedKeyThatWasNeverAddedChangesNothing();
    void clearedKeysAreForgotten();
    void stationWithAMarkerMayAlwaysHoldAnError();
};

void tst_UsageKeys::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_UsageKeys::stationOfAKeyMayHoldAnError_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stationID");
    QTest::newRow("CPU") << u"0_st1"_s << u"st1"_s;
    QTest::newRow("memory") << u"1_st1"_s << u"st1"_s;
    QTest::newRow("interface") << u"2_st1_en0"_s << u"st1"_s;
    QTest::newRow("empty station") << u"0_"_s << u""_s;
    QTest::newRow("null station") << u"0_"_s << QString();
    QTest::newRow("empty station, interface") << u"2__en0"_s << u""_s;
    // A key does not tell where the id of its station ends.
    QTest::newRow("station with an underscore") << u"2_st_1_en0"_s << u"st_1"_s;
    QTest::newRow("interface with an underscore") << u"2_st_1_en0"_s << u"st"_s;
    QTest::newRow("all of it") << u"2_st_1_en0"_s << u"st_1_en0"_s;
}

void tst_UsageKeys::stationOfAKeyMayHoldAnError()
{
    QFETCH(const QString, key);
    QFETCH(const QString, stationID);
    UsageKeys keys;
    QVERIFY(!keys.mayHold(stationID));
    keys.add(key);
    QVERIFY(keys.mayHold(stationID));
}

void tst_UsageKeys::otherStationHoldsNone_data()
{
    QTest::addColumn<QString>("stationID");
    QTest::newRow("shorter") << u"st"_s;
    QTest::newRow("longer") << u"st10"_s;
    QTest::newRow("other") << u"dock"_s;
    QTest::newRow("empty") << u""_s;
    QTest::newRow("other case") << u"ST1"_s;
}

void tst_UsageKeys::otherStationHoldsNone()
{
    QFETCH(const QString, stationID);
    UsageKeys keys;
    keys.add(u"0_st1"_s);
    keys.add(u"2_st1_en0"_s);
    QVERIFY(!keys.mayHold(stationID));
}

void tst_UsageKeys::keyOfAnotherErrorIsPassedOver_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("camera") << u"3_st1"_s;
    QTest::newRow("station") << u"4_st1"_s;
    QTest::newRow("two digits") << u"10_st1"_s;
    QTest::newRow("two digits, the first of which counts") << u"20_st1"_s;
    QTest::newRow("negative") << u"-1_st1"_s;
    QTest::newRow("no number") << u"st1"_s;
    QTest::newRow("one letter") << u"0"_s;
    QTest::newRow("empty") << u""_s;
}

void tst_UsageKeys::keyOfAnotherErrorIsPassedOver()
{
    QFETCH(const QString, key);
    UsageKeys keys;
    keys.add(key);
    QVERIFY(!keys.mayHold(u"st1"_s));
    keys.add(u"0_st1"_s);
    keys.remove(key);
    QVERIFY(keys.mayHold(u"st1"_s));
}

void tst_UsageKeys::stationHoldsNoneOnceAllItsKeysAreGone()
{
    UsageKeys keys;
    keys.add(u"0_st1"_s);
    keys.add(u"2_st1_en0"_s);
    keys.add(u"2_st1_en1"_s);
    keys.remove(u"2_st1_en0"_s);
    keys.remove(u"0_st1"_s);
    QVERIFY(keys.mayHold(u"st1"_s));
    keys.remove(u"2_st1_en1"_s);
    QVERIFY(!keys.mayHold(u"st1"_s));
}

void tst_UsageKeys::answerFollowsEachChange()
{
    // One string asks each time, as the values of one report do. A literal shares nothing.
    QString stationID = u"st1"_s;
    stationID.detach();
    UsageKeys keys;
    QVERIFY(!keys.mayHold(stationID));
    QVERIFY(!keys.mayHold(stationID));
    keys.add(u"0_st1"_s);
    QVERIFY(keys.mayHold(stationID));
    QVERIFY(keys.mayHold(stationID));
    keys.remove(u"0_st1"_s);
    QVERIFY(!keys.mayHold(stationID));
    keys.add(u"1_st1"_s);
    QVERIFY(keys.mayHold(stationID));
    keys.clear();
    QVERIFY(!keys.mayHold(stationID));
}

void tst_UsageKeys::removedKeyThatWasNeverAddedChangesNothing()
{
    UsageKeys keys;
    keys.remove(u"0_st1"_s);
    keys.add(u"0_st1"_s);
    QVERIFY(keys.mayHold(u"st1"_s));
}

void tst_UsageKeys::clearedKeysAreForgotten()
{
    UsageKeys keys;
    keys.add(u"0_st1"_s);
    keys.add(u"2_st2_en0"_s);
    keys.clear();
    QVERIFY(!keys.mayHold(u"st1"_s));
    QVERIFY(!keys.mayHold(u"st2"_s));
}

void tst_UsageKeys::stationWithAMarkerMayAlwaysHoldAnError()
{
    // Its keys are made by substitution and begin otherwise than the station's id.
    QVERIFY(UsageKeys().mayHold(u"a%3b"_s));
}

QTEST_GUILESS_MAIN(tst_UsageKeys)
#include "tst_UsageKeys.moc"
