#include "PluginSystemMonitor_Log.h"

#include "PluginSystemMonitorCommon.h"

// Set while the library loads, in this order, after the shared constants above.
AUTOLOGGER_PluginSystemMonitor g_PluginSystemMonitor;
int g_nGivenModIdPluginSystemMonitor = 0;
TraceLog::TraceRecord *g_ptTraceInfoPluginSystemMonitor = TraceLog::registerModule(
    g_PluginSystemMonitor, "PluginSystemMonitor", &g_nGivenModIdPluginSystemMonitor);

namespace {

// A Leave line stands for the whole scope, not for one line of it.
constexpr int LeaveLine = 0;

} // namespace

void LocalTraceOutFuncPluginSystemMonitor(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    TraceLog::write(g_ptTraceInfoPluginSystemMonitor, format, arguments);
    va_end(arguments);
}

bool isTraced(TraceLog::Level level, const char *file, int line)
{
    return TraceLog::isTraced(g_ptTraceInfoPluginSystemMonitor, g_nGivenModIdPluginSystemMonitor,
                              level, file, line);
}

EntryLog::EntryLog(const char *file, const char *function, int line)
    : m_file(file)
    , m_function(function)
    , m_line(line)
{ }

EntryLog::~EntryLog()
{
    if (isTraced(TraceLog::EntryLevel, m_file, LeaveLine))
        LocalTraceOutFuncPluginSystemMonitor("%s, Leave", m_function);
}

EntryLog traceEntry(const char *function, const char *file, int line)
{
    if (isTraced(TraceLog::EntryLevel, file, line))
        LocalTraceOutFuncPluginSystemMonitor("%s, Enter", function);
    return EntryLog(file, function, line);
}
