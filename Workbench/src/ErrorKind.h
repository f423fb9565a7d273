#ifndef ERRORKIND_H
#define ERRORKIND_H

#include <QString>

/// A short name for a kind of error, for programs: it is in no language and never changes.
///
/// @param type the number under which the kind stands in the error list; an unknown one yields
///             "other"
inline QString errorKind(int type)
{
    switch (type) {
    case 0:
        return QStringLiteral("cpu");
    case 1:
        return QStringLiteral("memory");
    case 2:
        return QStringLiteral("network");
    case 3:
        return QStringLiteral("camera");
    case 4:
        return QStringLiteral("station");
    case 5:
        return QStringLiteral("volume");
    case 7:
        return QStringLiteral("recording_days");
    default:
        return QStringLiteral("other");
    }
}

#endif
