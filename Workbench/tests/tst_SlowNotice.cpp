#include "SlowNotice.h"

#include <QMutex>
#include <QRegularExpression>
#include <QTest>

using namespace std::chrono_literals;

class tst_SlowNotice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void quickWorkIsNotTold();
    void slowWorkIsToldUntilItsEnd();

private:
    StatusLine line();
    void write(const QByteArray &bytes);
    QByteArray written();

    QMutex m_mutex;
    QByteArray m_written;
};

void tst_SlowNotice::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_written.clear();
}

StatusLine tst_SlowNotice::line()
{
    return StatusLine([this](const QByteArray &bytes) { write(bytes); });
}

void tst_SlowNotice::write(const QByteArray &bytes)
{
    const QMutexLocker lock(&m_mutex);
    m_written += bytes;
}

QByteArray tst_SlowNotice::written()
{
    const QMutexLocker lock(&m_mutex);
    return m_written;
}

void tst_SlowNotice::quickWorkIsNotTold()
{
    {
        const SlowNotice notice(line(), QStringLiteral("reading"), 1h);
    }
    QCOMPARE(written(), QByteArray());
}

void tst_SlowNotice::slowWorkIsToldUntilItsEnd()
{
    {
        const SlowNotice notice(line(), QStringLiteral("reading"), 0ms);
        QTRY_COMPARE(written(), QByteArray("\r\x1b[Kreading"));
    }
    QVERIFY(written().endsWith("\r\x1b[K"));
}

QTEST_GUILESS_MAIN(tst_SlowNotice)
#include "tst_SlowNotice.moc"
