#include "Machine.h"

#include <QDateTime>
#include <QFile>
#include <QSysInfo>
#include <QThread>

namespace {

QString processorName()
{
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("model name"))
                return QString::fromUtf8(line.mid(line.indexOf(':') + 1)).simplified();
        }
    }
    return QSysInfo::currentCpuArchitecture();
}

} // namespace

QString describeRun()
{
    return QStringLiteral("%1; %2, %3 processors; %4, kernel %5; Qt %6; %7, %8\n")
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm t")),
             processorName(), QString::number(QThread::idealThreadCount()),
             QSysInfo::prettyProductName(), QSysInfo::kernelVersion(), QLatin1String(qVersion()),
             QStringLiteral(COMPILER), QStringLiteral(BUILD_TYPE));
}
