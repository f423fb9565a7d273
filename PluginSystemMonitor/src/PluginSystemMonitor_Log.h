#ifndef PLUGINSYSTEMMONITOR_LOG_H
#define PLUGINSYSTEMMONITOR_LOG_H

#include "TraceModule.h"

// The plug-in's trace module. Its globals are set while the plug-in is loaded and only read
// afterwards; without the trace library every operation here is silent.

/// Closes the module's trace library when the plug-in is unloaded.
using AUTOLOGGER_PluginSystemMonitor = TraceLog::TraceLibrary;

extern AUTOLOGGER_PluginSystemMonitor g_PluginSystemMonitor;
extern TraceLog::TraceRecord *g_ptTraceInfoPluginSystemMonitor; ///< owned by the trace library
extern int g_nGivenModIdPluginSystemMonitor; ///< assigned by the trace library, perhaps late

/// Writes one message, printf-style. The caller has asked isTraced() before.
void LocalTraceOutFuncPluginSystemMonitor(const char *format, ...)
    __attribute__((format(printf, 1, 2)));

/// Whether a message of this level is wanted from where the call stands.
bool isTraced(TraceLog::Level level, const char *file = __builtin_FILE(),
              int line = __builtin_LINE());

/// Writes the Leave line of an operation when the scope is left, however that happens.
class EntryLog
{
public:
    /// All texts must outlive the object; in practice they are literals.
    EntryLog(const char *file, const char *function, int line);
    ~EntryLog();

    EntryLog(const EntryLog &) = delete;
    EntryLog &operator=(const EntryLog &) = delete;

private:
    const char *m_file;
    const char *m_function;
    [[maybe_unused]] int m_line; // where the operation starts, for a look at it in a debugger
};

/// Writes the Enter line of an operation and returns what writes its Leave line.
[[nodiscard]] EntryLog traceEntry(const char *function, const char *file = __builtin_FILE(),
                                  int line = __builtin_LINE());

#endif
