#include "CommandQueue.h"

#include "ServerNames.h"

#include <QPointer>

#include <algorithm>
#include <iterator>
#include <utility>

CommandQueue::CommandQueue(SiteServer &server, QObject *parent)
    : QObject(parent)
    , m_server(server)
{ }

void CommandQueue::add(const SiteCommand &command, const Answer &answer)
{
    m_entries.push_back({command, answer});
    if (m_entries.size() == 1)
        carryOutLater();
}

void CommandQueue::abandon()
{
    for (const Entry &entry : std::exchange(m_entries, {}))
        entry.answer({ServerNames::FrameworkInternalError, entry.command.data});
}

void CommandQueue::carryOutLater()
{
    QMetaObject::invokeMethod(this, &CommandQueue::carryOut, Qt::QueuedConnection);
}

// The rest is seen to before the answers, which may add commands or end the queue.
void CommandQueue::carryOut()
{
    const std::vector<Entry> entries = takeSome();
    if (!m_entries.empty())
        carryOutLater();
    std::vector<SiteCommand> commands;
    commands.reserve(entries.size());
    for (const Entry &entry : entries)
        commands.push_back(entry.command);
    const std::vector<CommandResult> results = m_server.executeAll(commands);
    const QPointer<CommandQueue> self(this);
    for (std::size_t i = 0; self && i < entries.size(); ++i)
        entries[i].answer(results[i]);
}

std::vector<CommandQueue::Entry> CommandQueue::takeSome()
{
    const auto count = static_cast<std::ptrdiff_t>(std::min(m_entries.size(), MaxAtATime));
    const auto end = m_entries.begin() + count;
    std::vector<Entry> entries(std::make_move_iterator(m_entries.begin()),
                               std::make_move_iterator(end));
    m_entries.erase(m_entries.begin(), end);
    return entries;
}
