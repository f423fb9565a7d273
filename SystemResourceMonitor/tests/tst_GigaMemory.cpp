#include "GigaMemory.h"

#include <QTest>

class tst_GigaMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void bytesAreShownInGibibytes_data();
    void bytesAreShownInGibibytes();
};

void tst_GigaMemory::bytesAreShownInGibibytes_data()
{
    QTest::addColumn<float>("bytes");
    QTest::addColumn<float>("gibibytes");
    QTest::newRow("nothing") << 0.0F << 0.0F;
    QTest::newRow("one") << 1073741824.0F << 1.0F;
    QTest::newRow("one and a half") << 1610612736.0F << 1.5F;
    QTest::newRow("one byte") << 1.0F << 0.0009765625F * 0.0009765625F * 0.0009765625F;
    QTest::newRow("negative") << -2147483648.0F << -2.0F;
}

void tst_GigaMemory::bytesAreShownInGibibytes()
{
    QFETCH(const float, bytes);
    QFETCH(const float, gibibytes);
    // Powers of two lose nothing, so the comparison is exact.
    QVERIFY(displayGigaMemory(bytes) == gibibytes);
}

QTEST_APPLESS_MAIN(tst_GigaMemory)
#include "tst_GigaMemory.moc"
