#ifndef DASHBOARDSNOOZES_H
#define DASHBOARDSNOOZES_H

#include "SnoozeList.h"

#include <QVariantList>

class Site;

/// Snoozes as the dashboard takes them: one map for each, with "nodeID", "type", "until"
/// (milliseconds since the epoch) and "name" (empty for a node that the site does not have).
QVariantList dashboardSnoozes(const Site &site, const std::vector<Snooze> &snoozes);

#endif
