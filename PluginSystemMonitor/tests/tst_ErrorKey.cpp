#include "ErrorKey.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_ErrorKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keyIsTypeIdAndSubId_data();
    void keyIsTypeIdAndSubId();
    void keyOutlivesWhatItWasMadeOf();
};

void tst_ErrorKey::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_ErrorKey::keyIsTypeIdAndSubId_data()
{
    QTest::addColumn<ErrorType>("type");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("subId");
    QTest::addColumn<QString>("key");
    const QString longId(300, u'x');
    QTest::newRow("without sub-id")
        << CameraDisconnected << u"st1/cam7"_s << u""_s << u"3_st1/cam7"_s;
    QTest::newRow("null sub-id") << StationDisconnected << u"st1"_s << QString() << u"4_st1"_s;
    QTest::newRow("with sub-id") << HighNetworkUsage << u"st1"_s << u"en0"_s << u"2_st1_en0"_s;
    QTest::newRow("nothing but a type") << HighCpuUsage << QString() << QString() << u"0_"_s;
    QTest::newRow("smallest type")
        << ErrorType(-2147483647 - 1) << u"s"_s << QString() << u"-2147483648_s"_s;
    QTest::newRow("beyond ASCII") << HighNetworkUsage << u"Tür"_s << u"網"_s << u"2_Tür_網"_s;
    QTest::newRow("long") << HighNetworkUsage << longId << longId
                          << u"2_"_s + longId + u'_' + longId;
    QTest::newRow("marker") << HighNetworkUsage << u"a%3b"_s << u"en0"_s << u"2_aen0b_en0"_s;
    QTest::newRow("lower marker") << HighNetworkUsage << u"a%1"_s << u"en0"_s << u"2_aen0_%3"_s;
    QTest::newRow("percent sign") << HighNetworkUsage << u"100%"_s << u"en0"_s << u"2_100%_en0"_s;
}

void tst_ErrorKey::keyIsTypeIdAndSubId()
{
    QFETCH(const ErrorType, type);
    QFETCH(const QString, id);
    QFETCH(const QString, subId);
    QFETCH(const QString, key);
    const ErrorKey made(type, id, subId);
    QCOMPARE(made.toString(), key);
    QCOMPARE(made.borrowed(), key);
    QCOMPARE(qHash(made.borrowed()), qHash(key));
}

void tst_ErrorKey::keyOutlivesWhatItWasMadeOf()
{
    QString id = u"st1"_s;
    const ErrorKey key(HighNetworkUsage, id, QString(u"en0"_s));
    id.fill(u'x');
    QString text = key.toString();
    QCOMPARE(text, u"2_st1_en0"_s);
    text.fill(u'x');
    QCOMPARE(key.borrowed(), u"2_st1_en0"_s);
}

QTEST_GUILESS_MAIN(tst_ErrorKey)
#include "tst_ErrorKey.moc"
