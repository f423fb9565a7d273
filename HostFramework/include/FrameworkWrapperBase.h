#ifndef FRAMEWORKWRAPPERBASE_H
#define FRAMEWORKWRAPPERBASE_H

#include <QtGlobal>

class QObject;
class QString;
class QVariant;

/// The services that the host gives to a plug-in.
///
/// The host owns the object; a plug-in keeps a plain pointer to it and never deletes it. Every
/// operation is called on the host's user-interface thread, with the opaque handle that the host
/// passed to PluginBase::InitialPluginBase as the first argument.
///
/// The order of the virtual operations is part of the contract: the host was built on its own, and
/// plug-ins call through the table position. Positions count from 0 at the first virtual operation;
/// the destructor takes positions 0 and 1 (in the Itanium C++ ABI it has two entries). The reserved
/// operations belong to the host and keep the others at their positions; plug-ins do not call them.
class FrameworkWrapperBase
{
public:
    FrameworkWrapperBase() = default;
    FrameworkWrapperBase(const FrameworkWrapperBase &) = delete;
    FrameworkWrapperBase &operator=(const FrameworkWrapperBase &) = delete;

    /// Positions 0 and 1.
    virtual ~FrameworkWrapperBase() = default;

    /// Position 2. Hands a command to the host, which forwards it to the server.
    ///
    /// @param handle   the host's opaque handle
    /// @param senderID the id of the plug-in that sends, to which the response goes
    /// @param command  the command's name
    /// @param data     the command's argument; an invalid variant for none
    /// @param context  comes back unchanged with the response; the host neither reads nor frees it
    /// @param flag     always 0
    /// @param target   the station or node that the command is for; empty for the server itself
    /// @return whether the host accepted the command. The response of an accepted command arrives
    ///         later, through PluginBase::CommandProcessor.
    virtual bool SendCommand(void *handle, const QString &senderID, const QString &command,
                             const QVariant &data, void *context, int flag,
                             const QString &target) = 0;

    /// Positions 3 to 6.
    virtual void Reserved3() { }
    virtual void Reserved4() { }
    virtual void Reserved5() { }
    virtual void Reserved6() { }

    /// Position 7. Connects a signal of one plug-in to a slot of another, by signature.
    ///
    /// @param handle     the host's opaque handle
    /// @param sourceID   the id of the plug-in that emits
    /// @param signal     the signal's signature with Qt's marker "2" in front, as SIGNAL() makes it
    /// @param receiverID the id of the plug-in that receives
    /// @param slot       the slot's signature with Qt's marker "1" in front, as SLOT() makes it
    /// @param flag       always 0
    /// @return whether the connection was made
    virtual bool ConnectPluginSignal(void *handle, const QString &sourceID, const char *signal,
                                     const QString &receiverID, const char *slot, int flag) = 0;

    /// Positions 8 and 9.
    virtual void Reserved8() { }
    virtual void Reserved9() { }

    /// Position 10. Tells a plug-in that it shall not wire itself to its pair plug-ins.
    virtual bool ShouldSkipPairWiring(void *handle) = 0;

    /// Positions 11 to 13.
    virtual void Reserved11() { }
    virtual void Reserved12() { }
    virtual void Reserved13() { }

    /// Position 14. Finds another plug-in's object.
    ///
    /// @param handle   the host's opaque handle
    /// @param pluginID the id of the plug-in that is looked for
    /// @return its object, which the host keeps owning, or null when there is no such plug-in
    virtual QObject *GetPluginObject(void *handle, const QString &pluginID) = 0;
};

#endif
