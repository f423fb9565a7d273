#include "MemoryUse.h"

#include <QTest>

class tst_MemoryUse_None : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresAreAbsentAndSaySo();
};

void tst_MemoryUse_None::figuresAreAbsentAndSaySo()
{
    const MemoryUse use = MemoryUse::now();
    QCOMPARE(use.allocated, 0);
    QCOMPARE(use.resident, 0);
    QVERIFY(!MemoryUse::isMeaningful());
}

QTEST_APPLESS_MAIN(tst_MemoryUse_None)
#include "tst_MemoryUse_None.moc"
