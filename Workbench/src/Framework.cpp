#include "Framework.h"

#include "PluginBase.h"
#include "ServerNames.h"
#include "SiteServer.h"

#include <utility>

Framework::Framework(Executor execute, QObject *parent)
    : QObject(parent)
    , m_execute(std::move(execute))
{ }

void *Framework::handle()
{
    return this;
}

void Framework::registerPlugin(const QString &pluginId, QObject *plugin)
{
    m_plugins.insert(pluginId, plugin);
}

void Framework::answerCommands()
{
    executeCommands();
    while (!m_executed.empty()) {
        const auto &[number, command] = *m_executed.begin();
        answer(number, {ServerNames::FrameworkInternalError, command.data});
    }
}

bool Framework::SendCommand(void *handle, const QString &senderID, const QString &command,
                            const QVariant &data, void *context, int, const QString &target)
{
    // Without a sender there is nobody to answer, and the context would never be freed.
    if (handle != this->handle() || !qobject_cast<PluginBase *>(plugin(senderID)))
        return false;
    m_commands.push_back({senderID, command, data, context, target});
    QMetaObject::invokeMethod(this, &Framework::executeCommands, Qt::QueuedConnection);
    return true;
}

bool Framework::ConnectPluginSignal(void *handle, const QString &sourceID, const char *signal,
                                    const QString &receiverID, const char *slot, int)
{
    QObject *const source = plugin(sourceID);
    QObject *const receiver = plugin(receiverID);
    if (handle != this->handle() || !source || !receiver)
        return false;
    return static_cast<bool>(QObject::connect(source, signal, receiver, slot));
}

bool Framework::ShouldSkipPairWiring(void *)
{
    return false;
}

QObject *Framework::GetPluginObject(void *handle, const QString &pluginID)
{
    return handle == this->handle() ? plugin(pluginID) : nullptr;
}

QObject *Framework::plugin(const QString &pluginId) const
{
    return m_plugins.value(pluginId);
}

void Framework::executeCommands()
{
    while (!m_commands.empty()) {
        const Command command = m_commands.front();
        m_commands.pop_front();
        execute(command);
    }
}

// An answer that comes late may find its command answered, or the framework gone.
void Framework::execute(const Command &command)
{
    Q_EMIT commandStarted(command.name, command.data, command.target);
    const int number = ++m_lastNumber;
    m_executed.emplace(number, command);
    m_execute(command.name, command.data, command.target,
              [self = QPointer<Framework>(this), number](const CommandResult &result) {
                  if (self)
                      self->answer(number, result);
              });
}

void Framework::answer(int number, const CommandResult &result)
{
    const auto node = m_executed.extract(number);
    if (!node)
        return;
    const Command &command = node.mapped();
    Q_EMIT commandExecuted(command.name, command.data, command.target, result.code);
    if (const auto sender = qobject_cast<PluginBase *>(plugin(command.senderId)))
        sender->CommandProcessor(command.name, result.data, command.context, result.code, {}, false,
                                 command.target);
}
