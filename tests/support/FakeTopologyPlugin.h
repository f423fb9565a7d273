#ifndef FAKETOPOLOGYPLUGIN_H
#define FAKETOPOLOGYPLUGIN_H

#include "CallLog.h"

#include <QObject>

/// The plug-in that owns the device tree, as far as others see it: four signals and one method.
class FakeTopologyPlugin : public QObject
{
    Q_OBJECT

public:
    explicit FakeTopologyPlugin(CallLog &log)
        : m_log(log)
    { }

    /// Logs its name and returns the model that the test has set.
    Q_INVOKABLE QObject *getStandardTopologyModel();

    QObject *model = nullptr; ///< not owned

Q_SIGNALS:
    void nodeStatusChanged(int type, const QString &nodeID, bool connected);
    void deviceRemoved(const QString &deviceID);
    void stationRemoved(const QString &stationID);
    void camStatusRetrievedChanged(bool success);

private:
    CallLog &m_log;
};

#endif
