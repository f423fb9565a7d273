#include "../ProcessorName.h"

#include <QSysInfo>
#include <QTest>

class tst_ProcessorName_None : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theArchitectureStandsForTheModel();
};

void tst_ProcessorName_None::theArchitectureStandsForTheModel()
{
    QVERIFY(!processorName().isEmpty());
    QCOMPARE(processorName(), QSysInfo::currentCpuArchitecture());
}

QTEST_APPLESS_MAIN(tst_ProcessorName_None)
#include "tst_ProcessorName_None.moc"
