#ifndef FRAMEWORK_H
#define FRAMEWORK_H

#include "FrameworkWrapperBase.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVariant>

#include <deque>
#include <functional>
#include <map>

struct CommandResult;

/// The services of the host, as plug-ins see them: a registry of plug-in objects, connections
/// between them by signature, and commands to the server that are answered from the event loop.
class Framework : public QObject, public FrameworkWrapperBase
{
    Q_OBJECT

public:
    /// Hears the result of a command.
    using Answer = std::function<void(const CommandResult &)>;
    using Executor = std::function<void(const QString &command, const QVariant &data,
                                        const QString &target, const Answer &answer)>;

    /// @param execute has the server carry out a command; the answer may come later
    explicit Framework(Executor execute, QObject *parent = nullptr);

    /// What plug-ins pass as the first argument of every call. Calls with another are refused.
    void *handle();

    /// Files a plug-in's object under its id, in place of an earlier one. The object stays its
    /// owner's; once it is gone the id is unknown again.
    void registerPlugin(const QString &pluginId, QObject *plugin);

    /// Answers the accepted commands that have not been answered yet: those for which the server
    /// takes its time with ServerNames::FrameworkInternalError.
    void answerCommands();

    bool SendCommand(void *handle, const QString &senderID, const QString &command,
                     const QVariant &data, void *context, int flag, const QString &target) override;
    bool ConnectPluginSignal(void *handle, const QString &sourceID, const char *signal,
                             const QString &receiverID, const char *slot, int flag) override;
    /// Plug-ins are always to wire themselves.
    bool ShouldSkipPairWiring(void *handle) override;
    QObject *GetPluginObject(void *handle, const QString &pluginID) override;

Q_SIGNALS:
    /// A command is about to be carried out.
    void commandStarted(const QString &command, const QVariant &data, const QString &target);
    /// A command was carried out, its sender is about to hear.
    void commandExecuted(const QString &command, const QVariant &data, const QString &target,
                         const QString &resultCode);

private:
    struct Command
    {
        QString senderId;
        QString name;
        QVariant data;
        void *context;
        QString target;
    };

    QObject *plugin(const QString &pluginId) const;
    void executeCommands();
    void execute(const Command &command);
    void answer(int number, const CommandResult &result);

    Executor m_execute;
    QHash<QString, QPointer<QObject>> m_plugins; // by id
    std::deque<Command> m_commands;              // accepted, in order, not yet executed
    std::map<int, Command> m_executed;           // by number, not yet answered
    int m_lastNumber = 0;
};

#endif
