#ifndef SILENTHOST_H
#define SILENTHOST_H

#include "CallLog.h"
#include "FakeTopologyPlugin.h"
#include "LoadedPlugin.h"
#include "PluginBase.h"
#include "SilentFramework.h"
#include "SilentRecordingPlugin.h"
#include "TopologyModel.h"

#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <memory>

/// A host that has loaded a plug-in file and paired the plug-in. It reaches the plug-in through the
/// entry points, the meta-object and signals connected by signature, and keeps no record of what
/// happens, so that a timed part holds the plug-in's work alone.
class SilentHost
{
public:
    explicit SilentHost(const QString &pluginFile);

    TopologyModel topologyModel; ///< what the plug-in finds names in and walks
    FakeTopologyPlugin topology{m_log};
    SilentRecordingPlugin recording;

    PluginBase *plugin() const { return m_plugin.plugin(); }
    QObject *object() const { return m_plugin.object(); }

    /// The error list, owned by the plug-in.
    QStandardItemModel *errors() const;

    /// The usage of the station in focus, owned by the plug-in.
    QStandardItemModel *resources() const;

    /// A view's proxy over the error list, in use: it has its rows.
    std::unique_ptr<QSortFilterProxyModel> proxy() const;

    /// Calls a slot or an invokable method without arguments. Ends the process when there is none.
    void invoke(const char *method) const;

    /// Delivers a resource report of a station.
    void report(const QVariant &report, const QString &stationID) const;

private:
    CallLog m_log; ///< used while the plug-in is paired, and not afterwards
    SilentFramework m_framework;
    LoadedPlugin m_plugin;
};

#endif
