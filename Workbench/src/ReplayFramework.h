#ifndef REPLAYFRAMEWORK_H
#define REPLAYFRAMEWORK_H

#include "FrameworkWrapperBase.h"

#include <QObject>
#include <QStandardItemModel>
#include <QString>
#include <QVariant>

#include <deque>

/// The plug-ins that a replayed plug-in pairs with: a topology model that a journal fills, and
/// nothing else, for whatever the others did stands in the journal.
class ReplayPeers : public QObject
{
    Q_OBJECT

public:
    QStandardItemModel topology;

    // Called by name.
    Q_INVOKABLE QObject *getStandardTopologyModel() { return &topology; }
    Q_INVOKABLE void reloadStorageUsageInfo(const QString &) { }
    Q_INVOKABLE bool addOperationalLog(const QString &, const QVariantList &) { return true; }
};

/// The host's services for a plug-in that is given a journal: commands are accepted and kept until
/// the journal answers them, and no signals are connected.
class ReplayFramework : public FrameworkWrapperBase
{
public:
    ReplayPeers &peers() { return m_peers; }
    const ReplayPeers &peers() const { return m_peers; }

    /// Takes the oldest command of a name and target that has not been answered.
    ///
    /// @return the context that goes back to the plug-in; null when there is no such command
    void *takeContext(const QString &command, const QString &target);

    struct Command
    {
        QString name;
        QString target;
        void *context;
    };

    /// The commands without an answer, oldest first, which are forgotten.
    std::deque<Command> takeUnanswered();

    bool SendCommand(void *handle, const QString &senderID, const QString &command,
                     const QVariant &data, void *context, int flag, const QString &target) override;
    bool ConnectPluginSignal(void *, const QString &, const char *, const QString &, const char *,
                             int) override
    {
        return true;
    }
    bool ShouldSkipPairWiring(void *) override { return false; }
    QObject *GetPluginObject(void *handle, const QString &pluginID) override;

private:
    ReplayPeers m_peers;
    std::deque<Command> m_commands;
};

#endif
