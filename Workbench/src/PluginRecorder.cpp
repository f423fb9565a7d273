#include "PluginRecorder.h"

#include "ErrorListText.h"
#include "FrameworkWrapperBase.h"
#include "JournalKeys.h"
#include "JournalWriter.h"
#include "NamedCall.h"
#include "PluginIds.h"

#include <QAbstractItemModel>
#include <QJsonArray>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QStandardItemModel>

namespace {

// The plug-in walks five seconds after the states were retrieved; its timer is a coarse one.
constexpr int EarliestWalkMs = 4500;

} // namespace

PluginRecorder::PluginRecorder(PluginBase &plugin, JournalWriter &journal)
    : m_object(&plugin)
    , m_plugin(plugin)
    , m_journal(journal)
{
    relaySignals();
}

void PluginRecorder::finish()
{
    if (m_errors)
        write({{JournalKeys::End, QJsonArray::fromStringList(errorListText(*m_errors))}});
    m_isFinished = true;
}

bool PluginRecorder::InitialPluginBase(QQmlContext *context, void *handle,
                                       FrameworkWrapperBase *framework)
{
    const bool isInitialised = m_plugin.InitialPluginBase(context, handle, framework);
    followErrorList();
    if (framework)
        followTopology(*framework, handle);
    return isInitialised;
}

void PluginRecorder::EventProcessor(QString eventName, qint64 first, int second, int third,
                                    QVariant data, const QString &sourceID)
{
    write({{JournalKeys::Event, eventName},
           {JournalKeys::Data, QJsonValue::fromVariant(data)},
           {JournalKeys::Source, sourceID}});
    const QScopedValueRollback depth(m_inputDepth, m_inputDepth + 1);
    m_plugin.EventProcessor(eventName, first, second, third, data, sourceID);
}

void PluginRecorder::EventProcessorEx(QString eventName, ConfigBase *config, qint64 first,
                                      int second, int third, QVariant data, const QString &sourceID)
{
    m_plugin.EventProcessorEx(eventName, config, first, second, third, data, sourceID);
}

// The host answers what is left when the plug-in is about to go.
void PluginRecorder::CommandProcessor(QString command, QVariant data, void *context,
                                      QString resultCode, QString text, bool flag,
                                      const QString &target)
{
    write({{JournalKeys::Response, command},
           {JournalKeys::Data, QJsonValue::fromVariant(data)},
           {JournalKeys::Code, resultCode},
           {JournalKeys::Target, target}});
    const QScopedValueRollback depth(m_inputDepth, m_inputDepth + 1);
    if (m_object)
        m_plugin.CommandProcessor(command, data, context, resultCode, text, flag, target);
}

void PluginRecorder::CommandProcessorEx(QString command, ConfigBase *config, QVariant data,
                                        void *context, QString resultCode, QString text, bool flag,
                                        const QString &target)
{
    m_plugin.CommandProcessorEx(command, config, data, context, resultCode, text, flag, target);
}

bool PluginRecorder::Init(QQmlContext *context)
{
    return m_plugin.Init(context);
}

void PluginRecorder::LoadPairPluginDone()
{
    m_plugin.LoadPairPluginDone();
}

void PluginRecorder::PluginServerConnected()
{
    write({{JournalKeys::Server, true}});
    const QScopedValueRollback depth(m_inputDepth, m_inputDepth + 1);
    m_plugin.PluginServerConnected();
}

void PluginRecorder::PluginServerDisconnected()
{
    write({{JournalKeys::Server, false}});
    const QScopedValueRollback depth(m_inputDepth, m_inputDepth + 1);
    m_plugin.PluginServerDisconnected();
}

QString PluginRecorder::focusStationResource() const
{
    return m_object ? m_object->property("focusStationResource").toString() : QString();
}

void PluginRecorder::setFocusStationResource(const QString &stationId)
{
    write({{JournalKeys::Set, QStringLiteral("focusStationResource")},
           {JournalKeys::Value, stationId}});
    const QScopedValueRollback depth(m_inputDepth, m_inputDepth + 1);
    if (m_object)
        m_object->setProperty("focusStationResource", stationId);
}

QVariantList PluginRecorder::stationErrorList() const
{
    return m_object ? m_object->property("stationErrorList").toList() : QVariantList();
}

QObject *PluginRecorder::getSystemErrorModel()
{
    return fetch("getSystemErrorModel");
}

QObject *PluginRecorder::getSystemErrorSortFilterModel(QObject *parent)
{
    return fetch("getSystemErrorSortFilterModel", {QVariant::fromValue(parent)});
}

QObject *PluginRecorder::getSystemResourceModel()
{
    return fetch("getSystemResourceModel");
}

bool PluginRecorder::checkSupportSystemMonitor(const QString &stationId)
{
    return call("checkSupportSystemMonitor", {stationId}).toBool();
}

void PluginRecorder::reconnectDisconnectSubstations()
{
    call("reconnectDisconnectSubstations");
}

void PluginRecorder::reconnectDisconnectCameras()
{
    call("reconnectDisconnectCameras");
}

bool PluginRecorder::setSnooze(const QString &nodeID, qlonglong timestamp, int type)
{
    return call("setSnooze", {nodeID, timestamp, type}).toBool();
}

void PluginRecorder::initNodeStatusError()
{
    call("initNodeStatusError");
}

void PluginRecorder::initNodeStatusErrorTimer(bool success)
{
    m_isWalkAhead = true;
    m_beforeWalk.setRemainingTime(EarliestWalkMs);
    call("initNodeStatusErrorTimer", {success});
}

void PluginRecorder::monitorNodeStatus(int type, const QString &nodeID, bool connected)
{
    call("monitorNodeStatus", {type, nodeID, connected});
}

void PluginRecorder::removeCameraError(const QString &nodeID)
{
    call("removeCameraError", {nodeID});
}

void PluginRecorder::removeStationError(const QString &nodeID)
{
    call("removeStationError", {nodeID});
}

void PluginRecorder::monitorVolumeStatus(const QString &nodeID)
{
    call("monitorVolumeStatus", {nodeID});
}

void PluginRecorder::removeVolumeError(const QString &nodeID)
{
    call("removeVolumeError", {nodeID});
}

void PluginRecorder::monitorInsufficientRecordingDays(const QString &stationID,
                                                      const QString &groupName,
                                                      const QString &groupID)
{
    call("monitorInsufficientRecordingDays", {stationID, groupName, groupID});
}

void PluginRecorder::monitorSufficientRecordingGroup(const QString &stationID,
                                                     const QString &groupID)
{
    call("monitorSufficientRecordingGroup", {stationID, groupID});
}

void PluginRecorder::relaySignals()
{
    for (int index = staticMetaObject.methodOffset(); index < staticMetaObject.methodCount();
         ++index) {
        const QMetaMethod own = staticMetaObject.method(index);
        if (own.methodType() != QMetaMethod::Signal)
            continue;
        const int theirs = m_object->metaObject()->indexOfSignal(own.methodSignature());
        if (theirs >= 0)
            connect(m_object, m_object->metaObject()->method(theirs), this, own);
    }
}

void PluginRecorder::followErrorList()
{
    m_errors = qobject_cast<QAbstractItemModel *>(getSystemErrorModel());
    if (!m_errors)
        return;
    connect(m_errors, &QAbstractItemModel::rowsAboutToBeInserted, this,
            &PluginRecorder::noticeWalk);
    connect(m_errors, &QAbstractItemModel::rowsAboutToBeRemoved, this, &PluginRecorder::noticeWalk);
}

void PluginRecorder::followTopology(FrameworkWrapperBase &framework, void *handle)
{
    QObject *const topology = framework.GetPluginObject(handle, PluginIds::Topology);
    if (!topology)
        return;
    QObject *const model = callByName(*topology, "getStandardTopologyModel", {}).value<QObject *>();
    if (const auto standard = qobject_cast<QStandardItemModel *>(model))
        m_topology =
            std::make_unique<TopologyRecorder>(*standard, [this](const QJsonObject &change) {
                write({{JournalKeys::Topology, change}});
            });
}

void PluginRecorder::write(const QJsonObject &entry)
{
    if (!m_isFinished)
        m_journal.write(entry);
}

void PluginRecorder::noticeWalk()
{
    if (m_inputDepth > 0 || !m_isWalkAhead || !m_beforeWalk.hasExpired())
        return;
    m_isWalkAhead = false;
    write({{JournalKeys::Call, QStringLiteral("initNodeStatusError")},
           {JournalKeys::Arguments, QJsonArray()}});
}

QVariant PluginRecorder::call(const char *method, const QVariantList &arguments)
{
    write({{JournalKeys::Call, QString::fromLatin1(method)},
           {JournalKeys::Arguments, QJsonArray::fromVariantList(arguments)}});
    const QScopedValueRollback depth(m_inputDepth, m_inputDepth + 1);
    return m_object ? callByName(*m_object, method, arguments) : QVariant();
}

QObject *PluginRecorder::fetch(const char *method, const QVariantList &arguments)
{
    return m_object ? callByName(*m_object, method, arguments).value<QObject *>() : nullptr;
}
