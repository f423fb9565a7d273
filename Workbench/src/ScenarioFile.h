#ifndef SCENARIOFILE_H
#define SCENARIOFILE_H

#include "Scenario.h"

class Site;

/// What decides by chance in a scenario unless the user gives another number.
constexpr quint32 DefaultScenarioSeed = 1;

/// Reads a scenario from a JSON file.
///
/// The outermost object has "events" and may have "screenshotAt" and "endAt", in seconds from the
/// start; without "endAt" the scenario ends with the last of the rest. An event has "at", in
/// seconds and not before that of the event above it, "do", which tells what happens, and the keys
/// that this needs. A storm becomes its single changes, in among the other events.
///
/// @param site the site on which it is played; every id must be one of its own that has not been
///             removed by an earlier event
/// @param seed decides by chance which cameras a storm takes and in which order; the same seed
/// makes
///             the same storms
///
/// Throws InputError when the file cannot be read, lacks a key, has an unknown one or an unknown
/// id.
Scenario readScenarioFile(const QString &fileName, const Site &site,
                          quint32 seed = DefaultScenarioSeed);

#endif
