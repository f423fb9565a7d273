#ifndef STATIONLIST_H
#define STATIONLIST_H

#include <QVariantList>

class QStandardItemModel;
class Site;

/// The stations of a site as the dashboard takes them: one map for each, a station before those
/// below it, with "stationID", "name", "parentID" (empty at the top) and "connected".
QVariantList stationList(const Site &site);
/// The same of a topology as the plug-in is given it.
QVariantList stationList(const QStandardItemModel &topology);

#endif
