#include "TraceModule.h"

#include <dlfcn.h>

namespace TraceLog {

namespace {

constexpr const char *LibraryFileName = "libQerlLogUtl.dylib";
constexpr const char *EntryPointName = "LogTrace_GetGlobalObject";

// The library wants this very number from every module, whatever the length of its name.
constexpr int RegistrationConstant = 19;

// A message's id holds the module above the level's eight bits.
constexpr int LevelBits = 8;

using EntryPoint = void (*)(int, void **);

} // namespace

TraceLibrary::TraceLibrary()
    : m_handle(dlopen(LibraryFileName, RTLD_LAZY))
{ }

TraceLibrary::~TraceLibrary()
{
    if (m_handle)
        dlclose(m_handle);
}

TraceRecord *registerModule(const TraceLibrary &library, const char *moduleName, int *moduleId)
{
    if (!library.handle())
        return nullptr;
    const auto entryPoint = reinterpret_cast<EntryPoint>(dlsym(library.handle(), EntryPointName));
    if (!entryPoint)
        return nullptr;

    void *global = nullptr;
    entryPoint(0, &global);
    const auto record = static_cast<TraceRecord *>(global);
    if (record && record->registerModule)
        record->registerModule(record->context, RegistrationConstant, moduleName, moduleId);
    return record;
}

bool isTraced(const TraceRecord *record, int moduleId, int level, const char *file, int line)
{
    if (!record || !record->context || !record->isSuppressed)
        return false;
    const int moduleAndLevel = (moduleId << LevelBits) | level;
    return record->isSuppressed(record->context, moduleAndLevel, 0, file, line) == 0;
}

void write(const TraceRecord *record, const char *format, va_list arguments)
{
    if (!record || !record->context || !record->output)
        return;
    record->output(record->context, format, arguments);
}

} // namespace TraceLog
