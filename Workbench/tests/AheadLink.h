#ifndef AHEADLINK_H
#define AHEADLINK_H

#include "LocalServerLink.h"

/// A link to a server whose clock is an hour ahead.
class AheadLink : public LocalServerLink
{
public:
    static constexpr qint64 AheadMs = 3'600'000;

    using LocalServerLink::LocalServerLink;

    qint64 clockAheadMs() const override { return AheadMs; }
};

#endif
