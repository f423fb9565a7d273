#include "ProcessorName.h"

#include <QSysInfo>

QString processorName()
{
    return QSysInfo::currentCpuArchitecture();
}
