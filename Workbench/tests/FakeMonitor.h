#ifndef FAKEMONITOR_H
#define FAKEMONITOR_H

#include "CallLog.h"
#include "ErrorModel.h"
#include "PluginBase.h"

/// A plug-in with the surface of the system monitor, which logs what is done to it.
class FakeMonitor : public PluginBase
{
    Q_OBJECT
    Q_INTERFACES(PluginBase)
    Q_PROPERTY(QString focusStationResource MEMBER m_focus)

public:
    explicit FakeMonitor(CallLog &log);

    /// For tests that have the object from a plug-in file.
    Q_INVOKABLE QStringList takeLog() { return m_log.take(); }

    bool InitialPluginBase(QQmlContext *context, void *handle,
                           FrameworkWrapperBase *framework) override;
    void EventProcessor(QString eventName, qint64, int, int, QVariant data,
                        const QString &sourceID) override;
    void EventProcessorEx(QString, ConfigBase *, qint64, int, int, QVariant,
                          const QString &) override;
    void CommandProcessor(QString command, QVariant data, void *context, QString resultCode,
                          QString, bool, const QString &) override;
    void CommandProcessorEx(QString, ConfigBase *, QVariant, void *, QString, QString, bool,
                            const QString &) override;
    bool Init(QQmlContext *) override;
    void LoadPairPluginDone() override;
    void PluginServerConnected() override;
    void PluginServerDisconnected() override;

    Q_INVOKABLE QObject *getSystemErrorModel() { return &m_errors; }
    Q_INVOKABLE bool checkSupportSystemMonitor(const QString &stationId);
    Q_INVOKABLE void reconnectDisconnectSubstations();
    Q_INVOKABLE void reconnectDisconnectCameras();
    Q_INVOKABLE bool setSnooze(const QString &nodeID, qlonglong timestamp, int type);

    void *lastContext = nullptr; ///< of the last command response

Q_SIGNALS:
    void isSupportSystemMonitor(QString stationId, bool isSupport);
    void clientResourceChanged(int cpu, int memory);
    void notifyServerReachingLimited(QString serverName, double percentage);
    void setSnoozeResponse(bool success);

private:
    Q_INVOKABLE void monitorNodeStatus(int type, const QString &nodeID, bool connected);
    Q_INVOKABLE void monitorVolumeStatus(const QString &nodeID);
    Q_INVOKABLE void removeVolumeError(const QString &nodeID);
    Q_INVOKABLE void monitorInsufficientRecordingDays(const QString &stationID,
                                                      const QString &groupName,
                                                      const QString &groupID);
    Q_INVOKABLE void monitorSufficientRecordingGroup(const QString &stationID,
                                                     const QString &groupID);

    CallLog &m_log;
    ErrorModel m_errors;
    QString m_focus;
};

#endif
