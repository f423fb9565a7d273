#include "ReplayFramework.h"

#include "PluginIds.h"

#include <algorithm>
#include <utility>

void *ReplayFramework::takeContext(const QString &command, const QString &target)
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(), [&](const Command &sent) {
        return sent.name == command && sent.target == target;
    });
    if (found == m_commands.end())
        return nullptr;
    void *const context = found->context;
    m_commands.erase(found);
    return context;
}

std::deque<ReplayFramework::Command> ReplayFramework::takeUnanswered()
{
    return std::exchange(m_commands, {});
}

bool ReplayFramework::SendCommand(void *, const QString &, const QString &command, const QVariant &,
                                  void *context, int, const QString &target)
{
    m_commands.push_back({command, target, context});
    return true;
}

QObject *ReplayFramework::GetPluginObject(void *, const QString &pluginID)
{
    const bool isPeer = pluginID == PluginIds::Topology
                        || pluginID == PluginIds::RecordingManagement
                        || pluginID == PluginIds::OperationalLog;
    return isPeer ? &m_peers : nullptr;
}
