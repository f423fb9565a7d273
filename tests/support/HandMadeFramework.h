#ifndef HANDMADEFRAMEWORK_H
#define HANDMADEFRAMEWORK_H

#include "FakeHost.h"

class FrameworkWrapperBase;

/// The host's services as the host has them in memory: a word that points to a table of functions.
///
/// No C++ class with virtual functions stands behind it, so a plug-in that calls another position
/// than the contract says does not get what it wants by the help of a shared header. Positions that
/// a plug-in has no business with end the process with a message.
class HandMadeFramework final : public FakeHost
{
public:
    explicit HandMadeFramework(CallLog &log);

    /// The object to hand to a plug-in; valid as long as this one lives.
    FrameworkWrapperBase *framework();

    struct Object
    {
        const void *table;
        FakeHost *host;
    };

private:
    Object m_object;
};

#endif
