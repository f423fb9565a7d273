#include "ReferenceMonitor.h"

#include "PrintedValue.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Camera = 0;
constexpr int Station = 1;

constexpr int CameraError = 3;
constexpr int StationError = 4;
constexpr int VolumeError = 5;
constexpr int DaysError = 7;

constexpr int StationRole = 257;
constexpr int DeviceRole = 258;
constexpr int OriginRole = 263;
constexpr int KeyRole = 264;

bool isDigit(const QString &text, qsizetype position)
{
    return position < text.size() && text[position] >= u'0' && text[position] <= u'9';
}

struct Marker
{
    qsizetype begin;
    qsizetype end;
    int number;
};

// The markers %1 to %99 (or %L1 to %L99) of a text.
QList<Marker> markers(const QString &text)
{
    QList<Marker> found;
    for (qsizetype begin = 0; begin < text.size(); ++begin) {
        if (text[begin] != u'%')
            continue;
        qsizetype end = begin + 1;
        if (end < text.size() && text[end] == u'L')
            ++end;
        const qsizetype digits = end;
        while (isDigit(text, end) && end < digits + 2)
            ++end;
        if (end > digits)
            found.append({begin, end, QStringView(text).mid(digits, end - digits).toInt()});
    }
    return found;
}

// Puts a value in place of every marker with the lowest number.
QString filled(const QString &text, const QString &value)
{
    const QList<Marker> all = markers(text);
    int lowest = 100;
    for (const Marker &marker : all)
        lowest = qMin(lowest, marker.number);
    QString result;
    qsizetype position = 0;
    for (const Marker &marker : all) {
        if (marker.number != lowest)
            continue;
        result += text.mid(position, marker.begin - position) + value;
        position = marker.end;
    }
    return result + text.mid(position);
}

QString beforeLastSlash(const QString &id)
{
    for (qsizetype i = id.size() - 1; i >= 0; --i) {
        if (id[i] == u'/')
            return id.left(i);
    }
    return {};
}

QString afterLastSlash(const QString &id)
{
    for (qsizetype i = id.size() - 1; i >= 0; --i) {
        if (id[i] == u'/')
            return id.mid(i + 1);
    }
    return id;
}

const ReferenceNode *findNode(const ReferenceNode &node, const QString &id)
{
    if (node.id == id)
        return &node;
    for (const ReferenceNode &child : node.children) {
        if (const ReferenceNode *const found = findNode(child, id))
            return found;
    }
    return nullptr;
}

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

QString truth(bool value)
{
    return value ? u"true"_s : u"false"_s;
}

} // namespace

ReferenceMonitor::ReferenceMonitor(int cpuThreshold, int memoryThreshold, int networkThreshold)
    : m_thresholds{cpuThreshold, memoryThreshold, networkThreshold}
{
    layOutResources();
}

const QMap<qlonglong, QString> &ReferenceMonitor::knownTimes()
{
    static const QMap<qlonglong, QString> times{
        {0, u"1970/01/01 01:00:00"_s},          {1705305909, u"2024/01/15 09:05:09"_s},
        {1705359599, u"2024/01/15 23:59:59"_s}, {1711846800, u"2024/03/31 03:00:00"_s},
        {1720007130, u"2024/07/03 13:45:30"_s}, {4294967296, u"2106/02/07 07:28:16"_s},
    };
    return times;
}

// Names and keys.

QString ReferenceMonitor::key(int type, const QString &id, const QString &subID) const
{
    const QString number = QString::number(type);
    if (subID.isEmpty())
        return filled(filled(u"%1_%2"_s, number), id);
    return filled(filled(filled(u"%1_%2_%3"_s, number), id), subID);
}

QString ReferenceMonitor::errorName(int type) const
{
    switch (type) {
    case 0:
        return u"CPU utilization over "_s + QString::number(m_thresholds[0]) + u'%';
    case 1:
        return u"Memory usage over "_s + QString::number(m_thresholds[1]) + u'%';
    case 2:
        return u"Network usage over "_s + QString::number(m_thresholds[2]) + u'%';
    case CameraError:
        return u"Camera disconnected"_s;
    case StationError:
        return u"Station disconnected"_s;
    case VolumeError:
        return u"Volume disconnected"_s;
    case DaysError:
        return u"Insufficient recording days"_s;
    default:
        return {};
    }
}

QString ReferenceMonitor::nodeName(const QString &id) const
{
    const ReferenceNode *const node = hasTop ? findNode(top, id) : nullptr;
    return node ? node->name : QString();
}

QString ReferenceMonitor::stationOrigin(const QString &stationID) const
{
    return u"Station: "_s + nodeName(stationID);
}

QString ReferenceMonitor::cameraOrigin(const QString &cameraID) const
{
    const QString camera = nodeName(cameraID);
    return u"Station: "_s + nodeName(beforeLastSlash(cameraID)) + u" / Camera: "_s
           + (camera.isEmpty() ? u"N/A"_s : camera);
}

QString ReferenceMonitor::groupOrigin(const QString &stationID, const QString &groupName) const
{
    return u"Station: "_s + nodeName(stationID) + u" / Archive: "_s + groupName;
}

// The error list.

void ReferenceMonitor::rowsInserted(int row)
{
    log.append(u"insert rows "_s + QString::number(row) + u" to "_s + QString::number(row));
}

void ReferenceMonitor::rowsRemoved(int first, int last)
{
    log.append(u"remove rows "_s + QString::number(first) + u" to "_s + QString::number(last));
}

// A model tells of a value only when it is another one.
void ReferenceMonitor::changeRow(int row, QString ReferenceError::*value, const QString &text)
{
    if (errors[row].*value == text)
        return;
    errors[row].*value = text;
    const int role = value == &ReferenceError::stationID  ? StationRole
                     : value == &ReferenceError::deviceID ? DeviceRole
                     : value == &ReferenceError::origin   ? OriginRole
                                                          : KeyRole;
    const QString number = QString::number(row);
    log.append(u"change rows "_s + number + u" to "_s + number + u", roles "_s
               + QString::number(role));
}

void ReferenceMonitor::removeRows(int first, int count)
{
    errors.remove(first, count);
    rowsRemoved(first, first + count - 1);
}

void ReferenceMonitor::resetRows()
{
    errors.clear();
    log.append(u"reset rows"_s);
}

ReferenceError *ReferenceMonitor::find(int type, const QString &id, const QString &subID)
{
    const int serial = m_serials.value(key(type, id, subID), 0);
    for (ReferenceError &error : errors) {
        if (error.serial == serial)
            return &error;
    }
    return nullptr;
}

void ReferenceMonitor::append(const ReferenceError &error)
{
    errors.append(error);
    errors.last().serial = ++m_lastSerial;
    errors.last().step = step;
    m_serials[error.key] = m_lastSerial;
    rowsInserted(static_cast<int>(errors.size()) - 1);
}

void ReferenceMonitor::remove(int serial)
{
    for (int row = 0; row < errors.size(); ++row) {
        if (errors[row].serial != serial)
            continue;
        m_serials.remove(errors[row].key);
        removeRows(row, 1);
        return;
    }
}

void ReferenceMonitor::moveRow(int from, int to)
{
    // A row that was taken out comes back as another one, which no key finds.
    ReferenceError error = errors.at(from);
    error.serial = ++m_lastSerial;
    removeRows(from, 1);
    errors.insert(to, error);
    rowsInserted(to);
}

void ReferenceMonitor::addStationError(const QString &stationID, int type, const QString &subID,
                                       const QString &origin)
{
    if (type == StationError && m_snoozed.contains(stationID))
        return;
    append({0, 0, key(type, stationID, subID), stationID, subID, type, 1, errorName(type),
            origin.isEmpty() ? stationOrigin(stationID) : origin});
}

void ReferenceMonitor::addCameraError(const QString &cameraID, const QString &origin)
{
    if (m_snoozed.contains(cameraID))
        return;
    append({0, 0, key(CameraError, cameraID, {}), beforeLastSlash(cameraID), cameraID, CameraError,
            2, errorName(CameraError), origin.isEmpty() ? cameraOrigin(cameraID) : origin});
}

void ReferenceMonitor::cameraRemoved(const QString &id)
{
    const QList<ReferenceError> before = errors;
    for (const ReferenceError &error : before) {
        if (error.deviceID == id)
            remove(error.serial);
    }
}

void ReferenceMonitor::stationRemoved(const QString &id)
{
    for (int row = static_cast<int>(errors.size()) - 1; row >= 0; --row) {
        if (errors[row].stationID.left(id.size()) == id)
            remove(errors[row].serial);
    }
}

// Node status.

void ReferenceMonitor::nodeStatus(int type, const QString &id, bool isConnected)
{
    if (type == Station) {
        if (!isConnected)
            stationRemoved(id);
        const ReferenceError *const error = find(StationError, id);
        if (isConnected && error)
            remove(error->serial);
        else if (!isConnected && !error)
            addStationError(id, StationError, {}, {});
    } else if (type == Camera) {
        const ReferenceError *const error = find(CameraError, id);
        if (isConnected && error)
            remove(error->serial);
        else if (!isConnected && !error)
            addCameraError(id, {});
    }
}

void ReferenceMonitor::nodeStatusAtStartUp(int type, const QString &id, bool isConnected,
                                           const QString &origin)
{
    if (type == Station) {
        const ReferenceError *const error = find(StationError, id);
        if (isConnected && error) {
            remove(error->serial);
        } else if (!isConnected && !error) {
            stationRemoved(id);
            addStationError(id, StationError, {}, origin);
        }
    } else if (type == Camera) {
        const ReferenceError *const error = find(CameraError, id);
        if (isConnected && error)
            remove(error->serial);
        else if (!isConnected && !error)
            addCameraError(id, origin);
    }
}

void ReferenceMonitor::walk()
{
    if (hasTop)
        walkBelow(top);
}

void ReferenceMonitor::walkBelow(const ReferenceNode &parent)
{
    for (const ReferenceNode &node : parent.children) {
        const QString origin = node.type == Camera
                                   ? nodeName(beforeLastSlash(node.id)) + u" - "_s + node.name
                                   : node.name;
        nodeStatusAtStartUp(node.type, node.id, node.isConnected, origin);
        if (node.type != Station)
            continue;
        log.append(u"find 8F33495A224D49ABB8F9E875984A1443"_s);
        if (hasRecordingPlugin)
            log.append(u"reloadStorageUsageInfo "_s + quoted(node.id));
        walkBelow(node);
    }
}

// Storage, usage and counts.

void ReferenceMonitor::volumeLost(const QString &id)
{
    if (!find(VolumeError, id))
        addStationError(id, VolumeError, {}, {});
}

void ReferenceMonitor::volumesCleared(const QString &id)
{
    const QList<ReferenceError> before = errors;
    for (const ReferenceError &error : before) {
        if (error.type == VolumeError && error.stationID == id)
            remove(error.serial);
    }
}

void ReferenceMonitor::usage(int type, const QString &stationID, int usage, const QString &subID)
{
    const ReferenceError *const error = find(type, stationID, subID);
    if (m_thresholds[type] > usage) {
        if (error)
            remove(error->serial);
    } else if (!error) {
        addStationError(stationID, type, subID, {});
    }
}

void ReferenceMonitor::daysInsufficient(const QString &stationID, const QString &name,
                                        const QString &groupID)
{
    if (const ReferenceError *const error = find(DaysError, stationID, groupID)) {
        const auto row = static_cast<int>(error - errors.constData());
        changeRow(row, &ReferenceError::origin, groupOrigin(stationID, name));
        return;
    }
    append({0, 0, key(DaysError, stationID, groupID), stationID, stationID, DaysError, 1,
            errorName(DaysError), groupOrigin(stationID, name)});
}

void ReferenceMonitor::daysSufficient(const QString &stationID, const QString &groupID)
{
    if (const ReferenceError *const error = find(DaysError, stationID, groupID))
        remove(error->serial);
}

void ReferenceMonitor::recount()
{
    QMap<QString, int> counts;
    for (const ReferenceError &error : std::as_const(errors))
        counts[error.stationID] += 1;
    stationErrors.clear();
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        stationErrors.append(
            QVariantMap{{u"stationID"_s, count.key()}, {u"errorNumber"_s, count.value()}});
    }
    log.append(u"stationErrorListChanged()"_s);
}

// Requests.

void ReferenceMonitor::setSnooze(const QString &id, qlonglong timestamp, int type)
{
    log.append(u"send setSnooze {\"nodeID\": "_s + quoted(id) + u", \"timestamp\": "_s
               + QString::number(timestamp) + u"LL, \"type\": "_s + QString::number(type)
               + u"} to \"\""_s);
}

void ReferenceMonitor::checkSupport(const QString &stationID)
{
    log.append(u"send isSupportSystemMonitor invalid to "_s + quoted(stationID));
}

void ReferenceMonitor::reconnectSubstations()
{
    QMap<QString, QStringList> stations;
    for (const ReferenceError &error : std::as_const(errors)) {
        if (error.type == StationError)
            stations[beforeLastSlash(error.stationID)].append(
                quoted(afterLastSlash(error.stationID)));
    }
    for (auto parent = stations.cbegin(); parent != stations.cend(); ++parent) {
        log.append(u"send reconnectSubstations QStringList["_s + parent.value().join(u", "_s)
                   + u"] to "_s + quoted(parent.key()));
    }
}

void ReferenceMonitor::reconnectCameras()
{
    QMap<QString, QStringList> cameras;
    for (const ReferenceError &error : std::as_const(errors)) {
        if (error.type == CameraError)
            cameras[beforeLastSlash(error.deviceID)].append(quoted(afterLastSlash(error.deviceID)));
    }
    for (auto station = cameras.cbegin(); station != cameras.cend(); ++station) {
        log.append(u"send reconnectCameras ["_s + station.value().join(u", "_s) + u"] to "_s
                   + quoted(station.key()));
    }
}

void ReferenceMonitor::setFocus(const QString &stationID)
{
    if (stationID == focus)
        return;
    focus = stationID;
    layOutResources();
    log.append(u"focusStationResourceChanged("_s + quoted(stationID) + u')');
}

// Events and responses.

void ReferenceMonitor::event(const QString &name, const QVariant &data, const QString &sourceID)
{
    const bool isMap = data.typeId() == QMetaType::QVariantMap;
    if (name == u"SystemResChanged"_s) {
        if (isMap)
            resourceReport(data, sourceID);
        log.append(u"notifySystemResourceUpdated()"_s);
    } else if (name == u"ServerReachingLimited"_s) {
        if (isMap) {
            const QVariantMap map = data.toMap();
            log.append(u"notifyServerReachingLimited("_s
                       + quoted(map.value(u"serverName"_s).toString()) + u", "_s
                       + printedValue(map.value(u"virtualSizePercentage"_s).toDouble()) + u')');
        }
    } else if (name == u"SnoozeError"_s) {
        snoozed(data);
    } else if (name == u"DeviceStillError"_s) {
        snoozeExpired(data);
    } else if (name == u"RemoveSnooze"_s) {
        snoozeReleased(data.toString());
    }
}

void ReferenceMonitor::snoozed(const QVariant &data)
{
    const QString id = data.toMap().value(u"nodeID"_s).toString();
    const ReferenceError *const error = find(data.toMap().value(u"type"_s).toInt(), id);
    if (!m_snoozed.contains(id))
        m_snoozed.append(id);
    if (error)
        remove(error->serial);
}

void ReferenceMonitor::snoozeExpired(const QVariant &data)
{
    const QString id = data.toMap().value(u"nodeID"_s).toString();
    const int type = data.toMap().value(u"type"_s).toInt();
    snoozeReleased(id);
    if (find(type, id))
        return;
    if (type == StationError)
        addStationError(id, StationError, {}, {});
    else if (type == CameraError)
        addCameraError(id, {});
}

void ReferenceMonitor::snoozeReleased(const QString &id)
{
    m_snoozed.removeAll(id);
}

void ReferenceMonitor::snoozeResponse(const QVariant &data, const QString &resultCode)
{
    log.append(u"setSnoozeResponse("_s + truth(resultCode == u"0"_s) + u')');
    const QVariantMap map = data.toMap();
    const ReferenceError *const error =
        find(map.value(u"type"_s).toInt(), map.value(u"nodeID"_s).toString());
    if (!error)
        return;
    log.append(u"find D8C607070A81469B8CA4FF2E107DB6AB"_s);
    if (!hasLogPlugin)
        return;
    const QString time = knownTimes().value(map.value(u"timestamp"_s).toLongLong());
    log.append(u"addOperationalLog \"AddDashboardSnooze\" [{\"param\": "_s + quoted(error->name)
               + u"}, {\"param\": "_s + quoted(error->origin) + u"}, {\"param\": "_s + quoted(time)
               + u"}]"_s);
}

void ReferenceMonitor::snoozeListResponse(const QStringList &ids)
{
    m_snoozed = ids;
}

void ReferenceMonitor::supportResponse(const QString &stationID, const QString &resultCode)
{
    const bool isSupported =
        resultCode != u"{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError"_s;
    log.append(u"isSupportSystemMonitor("_s + quoted(stationID) + u", "_s + truth(isSupported)
               + u')');
}

void ReferenceMonitor::paired()
{
    log.append(u"ask whether to skip pair wiring"_s);
    const QStringList connections{
        u"2nodeStatusChanged(int, const QString &, bool) to %1 "
        "1monitorNodeStatus(int, const QString &, bool)"_s,
        u"2deviceRemoved(const QString &) to %1 1removeCameraError(const QString &)"_s,
        u"2stationRemoved(const QString &) to %1 1removeStationError(const QString &)"_s,
        u"2camStatusRetrievedChanged(bool) to %1 1initNodeStatusErrorTimer(bool)"_s,
    };
    for (const QString &connection : connections) {
        log.append(u"connect 1AA33B3D0AA047C9A202F1181284D2CD "_s
                   + connection.arg(u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s));
    }
    log.append(u"find 1AA33B3D0AA047C9A202F1181284D2CD"_s);
    log.append(u"getStandardTopologyModel"_s);
}

void ReferenceMonitor::serverConnected()
{
    log.append(u"send getSnoozeList invalid to \"\""_s);
}

void ReferenceMonitor::serverDisconnected()
{
    while (!errors.isEmpty())
        remove(errors.last().serial);
}

// Resources.

void ReferenceMonitor::resourceReport(const QVariant &data, const QString &stationID)
{
    const QVariantMap map = data.toMap();
    const int cpu = map.value(u"cpuPercentage"_s).toInt();
    const int memory = map.value(u"memPercentage"_s).toInt();
    const QVariantList networks = map.value(u"networkUsageList"_s).toList();
    usage(0, stationID, cpu, {});
    usage(1, stationID, memory, {});
    for (const QVariant &network : networks) {
        const QVariantMap entry = network.toMap();
        usage(2, stationID, entry.value(u"networkPercentage"_s).toInt(),
              entry.value(u"networkInterface"_s).toString());
    }
    if (stationID != focus)
        return;
    updateResources(cpu, memory, networks);
    log.append(u"systemResourceChanged("_s + QString::number(cpu) + u", "_s
               + QString::number(memory) + u", "_s + printedValue(networks) + u')');
}

void ReferenceMonitor::layOutResources()
{
    const QVariantList zeros(60, 0);
    resources = {
        {0, u"CPU usage"_s, QString(), m_thresholds[0], zeros, 0},
        {1, u"Memory usage"_s, QString(), m_thresholds[1], zeros, 0},
        {2, u"Network usage"_s, QString(), m_thresholds[2], zeros, 0},
    };
    m_networksPending = true;
}

void ReferenceMonitor::layOutNetworks(QVariantList networks)
{
    if (!m_networksPending || networks.isEmpty())
        return;
    resources[2].subtitle = networks.takeFirst().toMap().value(u"networkInterface"_s);
    for (const QVariant &network : std::as_const(networks)) {
        resources.append({2, u"Network usage"_s,
                          network.toMap().value(u"networkInterface"_s).toString(), m_thresholds[2],
                          QVariantList(60, 0), 0});
    }
    m_networksPending = false;
}

void ReferenceMonitor::updateResources(int cpu, int memory, const QVariantList &networks)
{
    // An item keeps the list that it has when the new one is equal, and 0 is equal to 0.0.
    const auto push = [](ReferenceResource &row, const QVariant &value) {
        const QVariantList history = row.history.mid(1) + QVariantList{value};
        if (history != row.history)
            row.history = history;
    };
    layOutNetworks(networks);
    push(resources[0], cpu);
    push(resources[1], memory);
    for (qsizetype pass = 2; pass < resources.size(); ++pass) {
        for (const QVariant &network : networks) {
            const QVariantMap entry = network.toMap();
            const QString name = entry.value(u"networkInterface"_s).toString();
            for (ReferenceResource &row : resources) {
                if (!row.subtitle.isValid() || row.subtitle.toString() != name)
                    continue;
                push(row, entry.value(u"networkPercentage"_s).toDouble());
                row.bandwidth = entry.value(u"networkBandwidth"_s).toDouble();
                break;
            }
        }
    }
}
