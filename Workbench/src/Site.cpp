#include "Site.h"

#include <algorithm>
#include <utility>

namespace {

template <typename Items> auto findById(Items &items, const QString &id)
{
    return std::find_if(items.begin(), items.end(),
                        [&id](const auto &item) { return item.id == id; });
}

template <typename Items>
auto pointerById(Items &items, const QString &id) -> decltype(items.data())
{
    const auto found = findById(items, id);
    return found == items.end() ? nullptr : &*found;
}

template <typename Item> bool removeById(std::vector<Item> &items, const QString &id)
{
    const auto found = findById(items, id);
    if (found == items.end())
        return false;
    items.erase(found);
    return true;
}

template <typename Stations>
auto findBelow(Stations &stations, const QString &id) -> decltype(stations.data())
{
    for (auto &station : stations) {
        if (station.id == id)
            return &station;
        if (const auto found = findBelow(station.stations, id))
            return found;
    }
    return nullptr;
}

template <typename SiteType> auto findCameraIn(SiteType &site, const QString &id)
{
    const auto station = site.findStation(parentNodeId(id));
    return station ? pointerById(station->cameras, id) : nullptr;
}

} // namespace

Volume *Station::findVolume(const QString &volumeId)
{
    return pointerById(volumes, volumeId);
}

RecordingGroup *Station::findRecordingGroup(const QString &groupId)
{
    return pointerById(recordingGroups, groupId);
}

bool Station::hasLostVolume() const
{
    return std::any_of(volumes.begin(), volumes.end(),
                       [](const Volume &volume) { return !volume.connected; });
}

void Station::forEachStation(const std::function<void(const Station &)> &visit) const
{
    visit(*this);
    for (const Station &below : stations)
        below.forEachStation(visit);
}

const Station *Site::findStation(const QString &id) const
{
    return findBelow(stations, id);
}

Station *Site::findStation(const QString &id)
{
    return findBelow(stations, id);
}

const Camera *Site::findCamera(const QString &id) const
{
    return findCameraIn(*this, id);
}

Camera *Site::findCamera(const QString &id)
{
    return findCameraIn(*this, id);
}

bool Site::removeCamera(const QString &id)
{
    Station *const station = findStation(parentNodeId(id));
    return station && removeById(station->cameras, id);
}

bool Site::removeStation(const QString &id)
{
    Station *const parent = findStation(parentNodeId(id));
    return removeById(parent ? parent->stations : stations, id);
}

void Site::forEachStation(const std::function<void(const Station &)> &visit) const
{
    for (const Station &station : stations)
        station.forEachStation(visit);
}

int Site::stationCount() const
{
    int count = 0;
    forEachStation([&count](const Station &) { ++count; });
    return count;
}

int Site::cameraCount() const
{
    std::size_t count = 0;
    forEachStation([&count](const Station &station) { count += station.cameras.size(); });
    return static_cast<int>(count);
}

QString parentNodeId(const QString &id)
{
    const qsizetype slash = id.lastIndexOf(u'/');
    return slash < 0 ? QString() : id.left(slash);
}

QString childNodeId(const QString &parentId, const QString &ownPart)
{
    return parentId.isEmpty() ? ownPart : parentId + u'/' + ownPart;
}
