#include "SystemResourceMonitor_Log.h"

// The order matters: the id must be there before the library that may write it, and the library
// before the registration.
int g_nGivenModIdSystemResourceMonitor = 0;
AUTOLOGGER_SystemResourceMonitor g_SystemResourceMonitor;
TraceLog::TraceRecord *g_ptTraceInfoSystemResourceMonitor = TraceLog::registerModule(
    g_SystemResourceMonitor, "SystemResourceMonitor", &g_nGivenModIdSystemResourceMonitor);

bool isTracedSystemResourceMonitor(int level, const char *file, int line)
{
    return TraceLog::isTraced(g_ptTraceInfoSystemResourceMonitor,
                              g_nGivenModIdSystemResourceMonitor, level, file, line);
}

void LocalTraceOutFuncSystemResourceMonitor(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    TraceLog::write(g_ptTraceInfoSystemResourceMonitor, format, arguments);
    va_end(arguments);
}
