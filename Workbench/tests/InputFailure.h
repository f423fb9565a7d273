#ifndef INPUTFAILURE_H
#define INPUTFAILURE_H

#include "InputError.h"

/// The message of the InputError that a call throws, or nothing when it throws none.
template <typename Call> QString inputFailure(Call call)
{
    try {
        call();
    } catch (const InputError &error) {
        return error.message();
    }
    return {};
}

/// The same, with "FILE" in place of the name of the file that is read.
template <typename Call> QString inputFailure(const QString &fileName, Call call)
{
    return inputFailure(call).replace(fileName, QStringLiteral("FILE"));
}

#endif
