#ifndef COMMANDQUEUE_H
#define COMMANDQUEUE_H

#include "SiteServer.h"

#include <QObject>

#include <deque>
#include <functional>

/// Collects a client's commands and has the server carry them out together, from the event loop:
/// a thousand snoozes that arrive at a time are then stored with one sync.
class CommandQueue : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(const CommandResult &)>;

    /// More commands are left for the next turn of the event loop, so that the others have theirs.
    static constexpr std::size_t MaxAtATime = 1000;

    /// @param server must outlive the queue
    explicit CommandQueue(SiteServer &server, QObject *parent = nullptr);

    /// @param answer hears the result once the command was carried out, or abandon() was called;
    ///               never if the queue is gone before
    void add(const SiteCommand &command, const Answer &answer);

    /// Answers what waits with ServerNames::FrameworkInternalError; it is not carried out.
    void abandon();

private:
    struct Entry
    {
        SiteCommand command;
        Answer answer;
    };

    void carryOut();
    std::vector<Entry> takeSome();
    void carryOutLater();

    SiteServer &m_server;
    std::deque<Entry> m_entries;
};

#endif
