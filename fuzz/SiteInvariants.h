#ifndef SITEINVARIANTS_H
#define SITEINVARIANTS_H

#include "Site.h"

/// Requires what holds of every site that was accepted: each id is used once and names the node
/// above, each node is found by its id, all are counted, and storage is unique in its station.
void requireTree(const Site &site);

/// Requires that a site comes through whole when it is written and read again, apart from what
/// toJson() leaves out.
void requireRewritable(const Site &site);

#endif
