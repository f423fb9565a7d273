// A library that hands out no record.
#include "RecordingTrace.h"

using namespace RecordingTrace;

TEST_TRACE_EXPORT void LogTrace_GetGlobalObject(int argument, void **record)
{
    handOut(argument, nullptr, record);
}
