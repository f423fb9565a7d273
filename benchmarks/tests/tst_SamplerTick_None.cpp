#include "../SamplerTick.h"

#include <QTest>

class tst_SamplerTick_None : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsNothingToCompareWith();
};

void tst_SamplerTick_None::thereIsNothingToCompareWith()
{
    QVERIFY(!readingTick());
    QVERIFY(!gtopTick());
    QVERIFY(!proc2Tick());
}

QTEST_APPLESS_MAIN(tst_SamplerTick_None)
#include "tst_SamplerTick_None.moc"
