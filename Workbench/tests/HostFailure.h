#ifndef HOSTFAILURE_H
#define HOSTFAILURE_H

#include "HostError.h"

/// The message of the HostError that a call throws, or nothing when it throws none.
template <typename Call> QString hostFailure(Call call)
{
    try {
        call();
    } catch (const HostError &error) {
        return error.message();
    }
    return {};
}

#endif
