#ifndef FUZZTARGET_H
#define FUZZTARGET_H

#include <cstddef>
#include <cstdint>

// What a target consists of. The fuzzer calls it, or the replay in builds without one.

/// Once, before the first input.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

/// Does with one input what a host, a server or a user might. Always returns 0; a fault ends the
/// process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

#endif
