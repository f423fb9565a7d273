#include "CollectedTrace.h"

#include "PluginSystemMonitor_Log.h"

#include <utility>

namespace {

int levelOf(int moduleAndLevel)
{
    return moduleAndLevel & 0xff;
}

QString withoutPath(const char *file)
{
    const QString path = QString::fromUtf8(file);
    return path.mid(path.lastIndexOf(u'/') + 1);
}

} // namespace

CollectedTrace::CollectedTrace(int highestLevel)
    : m_previousRecord(std::exchange(g_ptTraceInfoPluginSystemMonitor, &m_record))
    , m_highestLevel(highestLevel)
{
    m_record.context = this;
    m_record.isSuppressed = isSuppressed;
    m_record.output = output;
}

CollectedTrace::~CollectedTrace()
{
    g_ptTraceInfoPluginSystemMonitor = m_previousRecord;
}

QStringList CollectedTrace::take()
{
    m_questions.clear();
    return std::exchange(m_lines, {});
}

int CollectedTrace::isSuppressed(void *context, int moduleAndLevel, int zero, const char *file,
                                 int line)
{
    auto *self = static_cast<CollectedTrace *>(context);
    self->m_questions.append({moduleAndLevel, zero, withoutPath(file), line});
    return levelOf(moduleAndLevel) > self->m_highestLevel ? 1 : 0;
}

// A message comes right after the question whether it is wanted, which has the level.
void CollectedTrace::output(void *context, const char *format, va_list arguments)
{
    auto *self = static_cast<CollectedTrace *>(context);
    const int level =
        self->m_questions.isEmpty() ? 0 : levelOf(self->m_questions.last().moduleAndLevel);
    self->m_lines.append(QString::number(level) + u' ' + QString::vasprintf(format, arguments));
}
