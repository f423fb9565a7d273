#ifndef HOSTEDPLUGIN_H
#define HOSTEDPLUGIN_H

#include "CallLog.h"
#include "FakeOperationalLogPlugin.h"
#include "FakeRecordingPlugin.h"
#include "FakeTopologyPlugin.h"
#include "RecordingFramework.h"
#include "SignalLog.h"
#include "TestedPlugin.h"
#include "TopologyModel.h"

/// A plug-in in a host of its own, with the plug-ins that go with it.
///
/// The log has the plug-in's signals, its calls on the host, and its calls on the other plug-ins.
class HostedPlugin
{
public:
    /// How far the host has come when the constructor is done.
    enum Stage {
        Created,     ///< the object exists, nothing was called
        Initialised, ///< InitialPluginBase() was called
        Paired,      ///< LoadPairPluginDone() was called as well
    };

    /// Takes the plug-in to the stage, with the default thresholds; the log is empty then. No
    /// sample of this machine disturbs the test.
    explicit HostedPlugin(Stage stage = Paired);

    CallLog log;
    RecordingFramework host{log};
    TopologyModel topologyModel;
    FakeTopologyPlugin topology{log};
    FakeRecordingPlugin recording{log};
    FakeOperationalLogPlugin operationalLog{log};
    TestedPlugin plugin;

    bool initialise();

    /// Delivers a server event.
    void event(const QString &name, const QVariant &data = {}, const QString &sourceID = {});

    /// Delivers the response to a command.
    void respond(const QString &command, const QVariant &data = {},
                 const QString &resultCode = QStringLiteral("0"), void *context = nullptr);

    /// The keys of the listed errors, in the order of the list.
    QStringList errorKeys() const;

    /// The listed errors with all that they hold but the time, in the order of the list.
    QStringList errorRows() const;

private:
    SignalLog m_signals{&plugin, log};
};

/// Lets a running timer time out now; leaves an idle one alone.
void expire(QTimer &timer);

#endif
