#ifndef TRACEMODULE_H
#define TRACEMODULE_H

#include "TraceRecord.h"

namespace TraceLog {

/// A trace library opened at run time; closes it when destroyed.
///
/// One object of static storage duration per trace module, so that the library is closed when the
/// code that uses it is unloaded.
class TraceLibrary
{
public:
    /// Opens the trace library by its file name, lazily bound. The handle is null when there is no
    /// such library.
    TraceLibrary();
    ~TraceLibrary();

    TraceLibrary(const TraceLibrary &) = delete;
    TraceLibrary &operator=(const TraceLibrary &) = delete;

    /// What dlopen() returned; null when the library is missing.
    void *handle() const { return m_handle; }

private:
    void *m_handle;
};

/// Fetches the library's record and registers a module with it.
///
/// @param library    the library, opened or not
/// @param moduleName the name under which the module appears in the trace; must outlive the library
/// @param moduleId   where the library stores the module's id, at once or at any later time
/// @return the record, owned by the library, or null when the library or its entry point is missing
TraceRecord *registerModule(const TraceLibrary &library, const char *moduleName, int *moduleId);

/// Tells whether a message is to be written. Without a record, a context or a level test none is.
///
/// @param file the source file that writes the message
/// @param line the source line, 0 for a Leave line
bool isTraced(const TraceRecord *record, int moduleId, int level, const char *file, int line);

/// Hands a message to the library's output function, if there is one.
void write(const TraceRecord *record, const char *format, va_list arguments)
    __attribute__((format(printf, 2, 0)));

} // namespace TraceLog

#endif
