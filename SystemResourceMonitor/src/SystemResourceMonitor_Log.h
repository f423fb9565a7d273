#ifndef SYSTEMRESOURCEMONITOR_LOG_H
#define SYSTEMRESOURCEMONITOR_LOG_H

#include "TraceModule.h"

// The trace module "SystemResourceMonitor". The globals are set when the module is loaded and only
// read afterwards, but for the id, which the trace library may assign at any time.

/// Closes the trace library when the module is unloaded.
using AUTOLOGGER_SystemResourceMonitor = TraceLog::TraceLibrary;

/// The trace library, opened or not.
extern AUTOLOGGER_SystemResourceMonitor g_SystemResourceMonitor;

/// The library's record; null when the library or its entry point is missing.
extern TraceLog::TraceRecord *g_ptTraceInfoSystemResourceMonitor;

/// The id that the library knows this module by.
extern int g_nGivenModIdSystemResourceMonitor;

/// Tells whether a message of a TraceLog::Level is to be written; by default one of the caller's
/// line.
bool isTracedSystemResourceMonitor(int level, const char *file = __builtin_FILE(),
                                   int line = __builtin_LINE());

/// Writes a message if there is a library to write it. Ask isTracedSystemResourceMonitor() first.
void LocalTraceOutFuncSystemResourceMonitor(const char *format, ...)
    __attribute__((format(printf, 1, 2)));

#endif
