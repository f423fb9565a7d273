#include "TraceLines.h"

TraceLines::TraceLines()
{
    take();
}

QStringList TraceLines::take()
{
    QStringList lines;
    if (!journal())
        return lines;
    for (const TraceJournal::Message &message : journal()->messages) {
        const QString level = QString::number(message.levelTest.level());
        lines.append(level + u' ' + QString::fromLocal8Bit(message.text));
    }
    journal()->clear();
    return lines;
}

int TraceLines::moduleID(const QString &moduleName) const
{
    for (const TraceJournal::Registration &registration : journal()->registrations) {
        if (QString::fromStdString(registration.moduleName) == moduleName)
            return *registration.moduleId;
    }
    return 0;
}
