#include "Machine.h"

#include "ProcessorName.h"

#include <QDateTime>
#include <QSysInfo>
#include <QThread>

QString describeRun()
{
    return QStringLiteral("%1; %2, %3 processors; %4, kernel %5; Qt %6; %7, %8\n")
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm t")),
             processorName(), QString::number(QThread::idealThreadCount()),
             QSysInfo::prettyProductName(), QSysInfo::kernelVersion(), QLatin1String(qVersion()),
             QStringLiteral(COMPILER), QStringLiteral(BUILD_TYPE));
}
