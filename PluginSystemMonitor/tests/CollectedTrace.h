#ifndef COLLECTEDTRACE_H
#define COLLECTEDTRACE_H

#include "TraceModule.h"

#include <QList>
#include <QString>
#include <QStringList>

/// Takes the place of the trace library for the plug-in's module while it lives, and keeps what the
/// module writes. The previous record is put back at the end.
class CollectedTrace
{
public:
    /// @param highestLevel messages of a higher level are suppressed, all messages by 0
    explicit CollectedTrace(int highestLevel = TraceLog::EntryLevel);
    ~CollectedTrace();

    CollectedTrace(const CollectedTrace &) = delete;
    CollectedTrace &operator=(const CollectedTrace &) = delete;

    /// What the module asked before it wrote, or did not write, a message.
    struct Question
    {
        int moduleAndLevel;
        int zero;
        QString file; ///< without its path
        int line;
    };

    /// Every level test so far, oldest first.
    const QList<Question> &questions() const { return m_questions; }

    /// The messages so far, oldest first, each with its level, as in `2 Init, it failed`.
    const QStringList &lines() const { return m_lines; }

    /// The same, and forgets messages and questions.
    QStringList take();

    /// The record that the module sees; a test may take parts of it away.
    TraceLog::TraceRecord &record() { return m_record; }

private:
    static int isSuppressed(void *context, int moduleAndLevel, int zero, const char *file,
                            int line);
    static void output(void *context, const char *format, va_list arguments)
        __attribute__((format(printf, 2, 0)));

    TraceLog::TraceRecord m_record{};
    TraceLog::TraceRecord *m_previousRecord;
    int m_highestLevel;
    QList<Question> m_questions;
    QStringList m_lines;
};

#endif
