#ifndef STORMREADER_H
#define STORMREADER_H

#include "Storm.h"

class JsonObject;
class Site;

/// Reads a storm from the keys of a scenario's event: "change" and, if there, "station", "cameras",
/// "seconds" and "rate". Throws InputError.
///
/// @param site   where the cameras are
/// @param chance decides which cameras, if not all
/// @param most   how many changes the storm may make
Storm readStorm(JsonObject &event, const Site &site, QRandomGenerator &chance, int most);

#endif
