#ifndef RECORDINGTRACE_H
#define RECORDINGTRACE_H

#include "TestTraceLibrary.h"

#include <array>
#include <cstddef>

/// What the variants of the test trace library are made of.
namespace RecordingTrace {

/// The record as bare words, spelt out without the declarations of the code under test.
using Record = std::array<void *, 16>;

inline constexpr std::size_t ContextWord = 3;
inline constexpr std::size_t RegisterWord = 9;
inline constexpr std::size_t LevelTestWord = 14;
inline constexpr std::size_t OutputWord = 15;

/// The library's one journal.
TraceJournal &journal();

/// A record whose functions note each call in the journal. Every other word holds the address of a
/// function that ends the process, so that no reader of a wrong word goes unnoticed.
Record completeRecord();

/// A register function that notes the call and leaves the id for later.
void registerWithoutId(void *context, int constant, const char *moduleName, int *moduleId);

/// Notes a call of the entry point and hands out the record's address.
void handOut(int argument, Record *record, void **result);

} // namespace RecordingTrace

#define TEST_TRACE_EXPORT extern "C" __attribute__((visibility("default")))

#endif
