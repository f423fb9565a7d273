#ifndef TRACERECORD_H
#define TRACERECORD_H

#include <cstdarg>
#include <cstddef>

namespace TraceLog {

/// The importance of a message, as the trace library counts it.
enum Level : int {
    ErrorLevel = 2, ///< something went wrong
    InfoLevel = 3,  ///< something worth knowing happened
    EntryLevel = 5, ///< an operation was entered or left
};

/// The trace library's record, as it lies in memory.
///
/// The library defines and owns it; the functions are plain pointers that get the context first.
/// Any pointer may be null, in which case what it stands for is not available.
struct TraceRecord
{
    using RegisterModule = void (*)(void *context, int constant, const char *moduleName,
                                    int *moduleId);
    using LevelTest = int (*)(void *context, int moduleAndLevel, int zero, const char *file,
                              int line);
    using Output = void (*)(void *context, const char *format, va_list arguments);

    void *reserved0[3];
    void *context; ///< opaque; null disables output
    void *reserved4[5];
    RegisterModule registerModule; ///< assigns an id to a module, then or later
    void *reserved10[4];
    LevelTest isSuppressed; ///< 0 when the message is to be written
    Output output;          ///< writes one message
};

inline constexpr std::size_t WordSize = 8;
static_assert(sizeof(void *) == WordSize);
static_assert(offsetof(TraceRecord, context) == 3 * WordSize);
static_assert(offsetof(TraceRecord, registerModule) == 9 * WordSize);
static_assert(offsetof(TraceRecord, isSuppressed) == 14 * WordSize);
static_assert(offsetof(TraceRecord, output) == 15 * WordSize);

} // namespace TraceLog

#endif
