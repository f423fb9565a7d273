#ifndef CALLLOG_H
#define CALLLOG_H

#include <QStringList>

#include <utility>

/// What happened around a plug-in, one line an event, in the order in which it happened.
///
/// The fakes of a test share one log, so that a single comparison checks both what was done and in
/// which order: a signal, then a command, then a call on another plug-in.
class CallLog
{
public:
    void add(const QString &line) { m_lines.append(line); }

    /// All lines since the last take(), oldest first.
    const QStringList &lines() const { return m_lines; }

    /// The same, and empties the log.
    QStringList take() { return std::exchange(m_lines, {}); }

private:
    QStringList m_lines;
};

#endif
