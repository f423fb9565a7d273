#include "CameraProbe.h"

#include "FakePeer.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QByteArray Alive = "RTSP/1.0 200 OK\r\nCSeq: 1\r\nPublic: OPTIONS\r\n\r\n";
constexpr std::chrono::milliseconds Patience{10'000};

QUrl addressOf(const FakePeer &peer, const char *scheme = "rtsp")
{
    return QUrl(QStringLiteral("%1://127.0.0.1:%2").arg(QLatin1String(scheme)).arg(peer.port()));
}

QString outcome(const QUrl &address, std::chrono::milliseconds timeout = Patience)
{
    CameraProbe probe(address, timeout);
    QString outcome;
    int ends = 0;
    QObject::connect(&probe, &CameraProbe::answered, [&] {
        outcome = QStringLiteral("alive");
        ++ends;
    });
    QObject::connect(&probe, &CameraProbe::failed, [&](const QString &reason) {
        outcome = reason;
        ++ends;
    });
    probe.start();
    if (!QTest::qWaitFor([&ends] { return ends > 0; }, 10'000))
        return QStringLiteral("no end");
    QCoreApplication::processEvents();
    return ends == 1 ? outcome : QStringLiteral("several ends");
}

} // namespace

class tst_CameraProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void asksRtspCamerasForTheirOptions();
    void judgesRtspCameras_data();
    void judgesRtspCameras();
    void othersNeedOnlyTakeTheConnection();
    void refusalFails_data();
    void refusalFails();
    void mayEndWhileAnAnswerIsAwaited();
};

void tst_CameraProbe::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_CameraProbe::asksRtspCamerasForTheirOptions()
{
    FakePeer peer;
    peer.setAnswer(Alive);
    QUrl address = addressOf(peer);
    address.setPath(QStringLiteral("/live/1"));
    QCOMPARE(outcome(address), QStringLiteral("alive"));
    QCOMPARE(peer.requests(),
             QList<QByteArray>{"OPTIONS " + address.toEncoded() + " RTSP/1.0\r\nCSeq: 1\r\n\r\n"});
}

void tst_CameraProbe::judgesRtspCameras_data()
{
    QTest::addColumn<FakePeer::Manner>("manner");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("timeoutMs");
    QTest::addColumn<QString>("outcome");
    const int patience = 10'000;
    const QString late = QStringLiteral("no answer in time");
    const QString closed = QStringLiteral("the connection was closed");
    QTest::newRow("alive") << FakePeer::Answers << Alive << patience << QStringLiteral("alive");
    QTest::newRow("piece by piece")
        << FakePeer::Dribbles << Alive << patience << QStringLiteral("alive");
    QTest::newRow("slow") << FakePeer::Dribbles << Alive << 20 << late;
    QTest::newRow("silent") << FakePeer::Hangs << Alive << 20 << late;
    QTest::newRow("closing") << FakePeer::Closes << Alive << patience << closed;
    QTest::newRow("cut off") << FakePeer::Answers << Alive.chopped(4) << patience << closed;
    QTest::newRow("refusing") << FakePeer::Answers
                              << QByteArray("RTSP/1.0 454 Session Not Found\r\nCSeq: 1\r\n\r\n")
                              << patience << QStringLiteral("RTSP status 454");
    QTest::newRow("garbage") << FakePeer::Answers << QByteArray("\x01\x02\r\n\r\n") << patience
                             << QStringLiteral("the answer is no RTSP");
    QTest::newRow("huge") << FakePeer::Pours << QByteArray(1000, 'x') << patience
                          << QStringLiteral("the answer is too long");
}

void tst_CameraProbe::judgesRtspCameras()
{
    QFETCH(FakePeer::Manner, manner);
    QFETCH(QByteArray, answer);
    QFETCH(int, timeoutMs);
    FakePeer peer;
    peer.setManner(manner);
    peer.setAnswer(answer);
    const QString found = outcome(addressOf(peer), std::chrono::milliseconds(timeoutMs));
    QTEST(found, "outcome");
}

void tst_CameraProbe::othersNeedOnlyTakeTheConnection()
{
    FakePeer peer;
    peer.setManner(FakePeer::Hangs);
    QCOMPARE(outcome(addressOf(peer, "tcp")), QStringLiteral("alive"));
    QVERIFY(peer.requests().isEmpty());
}

void tst_CameraProbe::refusalFails_data()
{
    QTest::addColumn<QByteArray>("scheme");
    QTest::newRow("RTSP") << QByteArray("rtsp");
    QTest::newRow("connection") << QByteArray("tcp");
}

void tst_CameraProbe::refusalFails()
{
    QFETCH(QByteArray, scheme);
    const QUrl address = addressOf(FakePeer(), scheme.constData());
    QCOMPARE(outcome(address), QStringLiteral("Connection refused"));
}

void tst_CameraProbe::mayEndWhileAnAnswerIsAwaited()
{
    FakePeer peer;
    peer.setManner(FakePeer::Hangs);
    auto probe = std::make_unique<CameraProbe>(addressOf(peer), Patience);
    const QSignalSpy failures(probe.get(), &CameraProbe::failed);
    probe->start();
    QTRY_COMPARE(peer.requests().size(), 1);
    probe.reset();
    QCOMPARE(failures.size(), 0);
}

QTEST_GUILESS_MAIN(tst_CameraProbe)
#include "tst_CameraProbe.moc"
