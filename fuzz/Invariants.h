#ifndef INVARIANTS_H
#define INVARIANTS_H

class TestedPlugin;

/// Ends the process with a message when something that always holds does not. A fuzzer takes that
/// for a fault.
void require(bool holds, const char *what);

/// Requires what holds of a plug-in whose lists nobody else changes: no key is listed twice, every
/// row is found by its key, the counts are those of the rows, a view shows them all, the resource
/// rows begin with their three base rows and have full histories.
void requireConsistency(TestedPlugin &plugin);

#endif
