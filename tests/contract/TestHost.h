#ifndef TESTHOST_H
#define TESTHOST_H

#include "FakeOperationalLogPlugin.h"
#include "FakeRecordingPlugin.h"
#include "FakeTopologyPlugin.h"
#include "HandMadeFramework.h"
#include "LoadedPlugin.h"
#include "PluginBase.h"
#include "PluginIDs.h"
#include "PrintedValue.h"
#include "SignalLog.h"
#include "TopologyModel.h"

#include <QStandardItemModel>

/// The plug-in's environment variables; a null value leaves the variable unset.
struct ThresholdVariables
{
    QByteArray cpu;
    QByteArray memory;
    QByteArray network;
};

/// A host that has loaded the built plug-in file, with the plug-ins that go with it.
///
/// It reaches the plug-in as a host does: through the entry points of PluginBase, the meta-object
/// and signals connected by signature. What the plug-in does comes back in the log: its signals,
/// and its calls on the framework and on the other plug-ins.
class TestHost
{
public:
    /// How far the host has come when the constructor is done.
    enum Stage {
        Loaded,      ///< the object exists, nothing was called
        Initialised, ///< InitialPluginBase() was called
        Paired,      ///< LoadPairPluginDone() was called as well
    };

    /// Sets the environment and takes the plug-in to the stage; the log is empty then.
    explicit TestHost(Stage stage = Paired, const ThresholdVariables &thresholds = {});

    CallLog log;
    HandMadeFramework framework{log};
    TopologyModel topologyModel;
    FakeTopologyPlugin topology{log};
    FakeRecordingPlugin recording{log};
    FakeOperationalLogPlugin operationalLog{log};

    PluginBase *plugin() const { return m_plugin.plugin(); }
    QObject *object() const { return m_plugin.object(); }

    bool initialise();

    /// Delivers a server event.
    void event(const QString &name, const QVariant &data = {}, const QString &sourceID = {});

    /// Delivers the response to a command.
    void respond(const QString &command, const QVariant &data = {},
                 const QString &resultCode = QStringLiteral("0"), void *context = nullptr);

    /// Calls a slot or an invokable method by name. Ends the process when there is no such method.
    template <typename... Arguments> void invoke(const char *method, const Arguments &...arguments)
    {
        if (!QMetaObject::invokeMethod(object(), method, Qt::DirectConnection,
                                       argument(arguments)...))
            qFatal("%s cannot be invoked", method);
    }

    /// The same for a method with a result.
    template <typename Result, typename... Arguments>
    Result ask(const char *method, const Arguments &...arguments)
    {
        Result result{};
        const QByteArray type = QMetaType::fromType<Result>().name();
        if (!QMetaObject::invokeMethod(object(), method, Qt::DirectConnection,
                                       QReturnArgument<Result>(type.constData(), result),
                                       argument(arguments)...))
            qFatal("%s cannot be invoked", method);
        return result;
    }

    /// The error list; null before the plug-in is initialised.
    QAbstractItemModel *errors();
    QStringList errorKeys();
    QStringList errorRows();
    /// A role of the error in a row.
    QVariant error(int row, int role);

    /// The usage of the station in focus; null before the plug-in is initialised.
    QAbstractItemModel *resources();
    QStringList resourceRows();

private:
    template <typename Type> static QArgument<Type> argument(const Type &value)
    {
        return QArgument<Type>(QMetaType::fromType<Type>().name(), value);
    }

    LoadedPlugin m_plugin;
    SignalLog m_signals;
};

#endif
