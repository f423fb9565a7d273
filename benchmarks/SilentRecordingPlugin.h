#ifndef SILENTRECORDINGPLUGIN_H
#define SILENTRECORDINGPLUGIN_H

#include <QObject>

/// The plug-in that manages recordings; counts what it is asked and does no more.
class SilentRecordingPlugin : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void reloadStorageUsageInfo(const QString &) { ++reloads; }

    int reloads = 0; ///< calls so far
};

#endif
