#include "ProcessorName.h"

#include <QFile>
#include <QSysInfo>

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
