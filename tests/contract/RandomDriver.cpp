#include "RandomDriver.h"

#include "ModelRoles.h"

#include <QAbstractItemModelTester>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList StationIDs{
    u"st1"_s, u"st10"_s, u"st"_s,  u"ST1"_s, u"st1/sub"_s, u"st1/sub/deep"_s, u"a"_s,   u"a_b"_s,
    u"%1"_s,  u"%2"_s,   u"%3"_s,  u"%10"_s, u"%L1"_s,     u"st%1%3"_s,       u"50%"_s, u"%%3"_s,
    u"駅"_s,  u"駅/ü"_s, u"Ω 1"_s, u"x/"_s,  u"/"_s,       u"//x"_s,          u""_s,
};

const QStringList CameraNames{u"cam1"_s, u"cam10"_s, u"%2"_s, u"カメラ"_s, u""_s};

const QStringList SubIDs{
    u"en0"_s, u"en1"_s, u"b"_s, u"b_c"_s, u"%1"_s, u"%3"_s, u"%99"_s, u"網"_s, u"st1/cam1"_s, u""_s,
};

const QStringList Names{u"Lobby"_s, u"%1 %2"_s, u"Gate 駅"_s, u"50%"_s, u""_s};

const QStringList ResultCodes{u"0"_s, u""_s, u"1"_s, u"00"_s,
                              u"{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError"_s};

void showNode(QStandardItem *parent, const ReferenceNode &node)
{
    QStandardItem *const item =
        TopologyModel::addNode(parent, node.type, node.id, node.name, node.isConnected);
    for (const ReferenceNode &child : node.children)
        showNode(item, child);
}

// Shows in the tree what the node has become.
void showValues(QStandardItem &item, const ReferenceNode &node)
{
    item.setData(node.id, TopologyRole::LookupID);
    item.setData(QVariantMap{{u"nameRole"_s, node.name}}, TopologyRole::LookupNames);
    item.setData(node.name, TopologyRole::DisplayName);
    item.setData(node.id, TopologyRole::NodeID);
    item.setData(node.type, TopologyRole::NodeType);
    item.setData(node.isConnected, TopologyRole::Connected);
}

void sortByID(ReferenceNode &parent)
{
    std::stable_sort(
        parent.children.begin(), parent.children.end(),
        [](const ReferenceNode &left, const ReferenceNode &right) { return left.id < right.id; });
    for (ReferenceNode &child : parent.children)
        sortByID(child);
}

QString words(std::initializer_list<QVariant> values)
{
    QStringList texts;
    for (const QVariant &value : values)
        texts.append(printedValue(value));
    return texts.join(u' ');
}

} // namespace

RandomDriver::RandomDriver(quint32 seed)
    : m_random(seed)
    , m_stationIDs(someOf(StationIDs, 5))
    , m_subIDs(someOf(SubIDs, 3))
    , m_thresholds{1 + below(100), 1 + below(100), 1 + below(100)}
    , m_host(std::make_unique<TestHost>(TestHost::Paired,
                                        ThresholdVariables{QByteArray::number(m_thresholds[0]),
                                                           QByteArray::number(m_thresholds[1]),
                                                           QByteArray::number(m_thresholds[2])}))
    , m_errorRows(*m_host->errors(), m_host->log)
    , m_topology(&m_host->topologyModel)
    , m_reference(m_thresholds[0], m_thresholds[1], m_thresholds[2])
{
    for (int i = 0; i < 6; ++i) {
        const QString stationID = oneOf(m_stationIDs);
        m_cameraIDs.append(stationID + u'/' + oneOf(CameraNames));
    }
    m_cameraIDs.append(u"stray"_s);
    new QAbstractItemModelTester(m_host->errors(), m_host->errors());
    new QAbstractItemModelTester(m_host->resources(), m_host->resources());
    for (int i = 0; i < 3; ++i)
        addView();
    showTopology();
}

QStringList RandomDriver::someOf(const QStringList &all, int count)
{
    QStringList chosen;
    for (int i = 0; i < count; ++i)
        chosen.append(oneOf(all));
    return chosen;
}

QString RandomDriver::step()
{
    // What matters most stands here several times.
    static const QList<Operation> operations{
        &RandomDriver::reportNode,
        &RandomDriver::reportNode,
        &RandomDriver::reportNode,
        &RandomDriver::reportNode,
        &RandomDriver::reportNode,
        &RandomDriver::reportNodeAtStartUp,
        &RandomDriver::reportNodeAtStartUp,
        &RandomDriver::removeCamera,
        &RandomDriver::removeStation,
        &RandomDriver::changeTopology,
        &RandomDriver::changeNode,
        &RandomDriver::moveNode,
        &RandomDriver::moveNode,
        &RandomDriver::sortNodes,
        &RandomDriver::removeNode,
        &RandomDriver::pairAnew,
        &RandomDriver::endTopology,
        &RandomDriver::walk,
        &RandomDriver::walk,
        &RandomDriver::removeRowsBehind,
        &RandomDriver::moveRowBehind,
        &RandomDriver::changeRowBehind,
        &RandomDriver::resetListBehind,
        &RandomDriver::reportVolume,
        &RandomDriver::reportVolume,
        &RandomDriver::reportUsage,
        &RandomDriver::reportUsage,
        &RandomDriver::reportGroup,
        &RandomDriver::reportGroup,
        &RandomDriver::recount,
        &RandomDriver::requestSnooze,
        &RandomDriver::answerSnooze,
        &RandomDriver::answerSnooze,
        &RandomDriver::answerSnoozeList,
        &RandomDriver::sendSnoozeEvent,
        &RandomDriver::sendSnoozeEvent,
        &RandomDriver::sendReleaseEvent,
        &RandomDriver::sendResourceEvent,
        &RandomDriver::sendResourceEvent,
        &RandomDriver::sendResourceEvent,
        &RandomDriver::sendCapacityEvent,
        &RandomDriver::sendOtherEvent,
        &RandomDriver::changeFocus,
        &RandomDriver::askForSupport,
        &RandomDriver::answerSupport,
        &RandomDriver::reconnect,
        &RandomDriver::changeConnection,
        &RandomDriver::changePlugins,
        &RandomDriver::changeView,
        &RandomDriver::addView,
        &RandomDriver::endView,
    };
    ++m_reference.step;
    return (this->*oneOf(operations))();
}

void RandomDriver::finish()
{
    while (!m_openQuestions.isEmpty())
        answerSupport();
}

QString RandomDriver::reportNode()
{
    const int type = oneIn(20) ? 2 : below(2);
    const QString id = oneIn(8) ? nodeID() : oneOf(type == 1 ? m_stationIDs : m_cameraIDs);
    const bool isConnected = oneIn(3);
    Q_EMIT m_host->topology.nodeStatusChanged(type, id, isConnected);
    m_reference.nodeStatus(type, id, isConnected);
    return u"node status "_s + words({type, id, isConnected});
}

QString RandomDriver::reportNodeAtStartUp()
{
    const int type = oneIn(20) ? -1 : below(2);
    const QString id = oneOf(type == 1 ? m_stationIDs : m_cameraIDs);
    const bool isConnected = oneIn(3);
    const QString origin = oneOf(Names);
    m_host->invoke("monitorNodeStatusForInit", type, id, isConnected, origin);
    m_reference.nodeStatusAtStartUp(type, id, isConnected, origin);
    return u"node status at start-up "_s + words({type, id, isConnected, origin});
}

QString RandomDriver::removeCamera()
{
    const QString id = oneIn(4) ? oneOf(m_subIDs) : oneOf(m_cameraIDs);
    Q_EMIT m_host->topology.deviceRemoved(id);
    m_reference.cameraRemoved(id);
    return u"remove camera "_s + words({id});
}

QString RandomDriver::removeStation()
{
    QString id = oneOf(m_stationIDs);
    if (id.isEmpty() && !oneIn(4))
        id = u"none"_s;
    Q_EMIT m_host->topology.stationRemoved(id);
    m_reference.stationRemoved(id);
    return u"remove station "_s + words({id});
}

ReferenceNode RandomDriver::randomNode(int depth)
{
    ReferenceNode node;
    node.type = oneIn(10) ? 2 : below(2);
    node.id = node.type == 1 ? oneOf(m_stationIDs) : oneOf(m_cameraIDs);
    node.name = oneOf(Names);
    node.isConnected = oneIn(2);
    const int children = depth > 0 ? below(4) : 0;
    for (int i = 0; i < children; ++i)
        node.children.append(randomNode(depth - 1));
    return node;
}

void RandomDriver::showTopology()
{
    m_topology->clear();
    if (m_reference.hasTop)
        showNode(m_topology->invisibleRootItem(), m_reference.top);
}

QString RandomDriver::changeTopology()
{
    if (!m_topology)
        return pairAnew();
    m_reference.hasTop = !oneIn(8);
    m_reference.top = randomNode(3);
    m_reference.top.id = u"top"_s;
    showTopology();
    return u"change topology"_s;
}

RandomDriver::Node RandomDriver::someNode()
{
    Node node{&m_reference.top, m_topology->item(0)};
    while (!node.values->children.isEmpty() && !oneIn(3)) {
        const int row = below(static_cast<int>(node.values->children.size()));
        node = {&node.values->children[row], node.item->child(row)};
    }
    return node;
}

QString RandomDriver::changeNode()
{
    if (!m_topology || !m_reference.hasTop)
        return u"no node to change"_s;
    const auto [node, item] = someNode();
    const ReferenceNode values = randomNode(0);
    switch (below(4)) {
    case 0:
        node->name = values.name;
        break;
    case 1:
        node->id = values.id;
        break;
    case 2:
        node->isConnected = values.isConnected;
        break;
    default:
        node->type = values.type;
    }
    showValues(*item, *node);
    return u"change node "_s + words({node->id, node->name, node->type, node->isConnected});
}

QString RandomDriver::moveNode()
{
    if (!m_topology || !m_reference.hasTop)
        return u"no node to move"_s;
    const Node oldParent = someNode();
    if (oldParent.values->children.isEmpty())
        return u"no node to move"_s;
    const int from = below(static_cast<int>(oldParent.values->children.size()));
    const ReferenceNode values = oldParent.values->children.takeAt(from);
    const QList<QStandardItem *> row = oldParent.item->takeRow(from);

    const Node newParent = someNode();
    const int to = below(static_cast<int>(newParent.values->children.size()) + 1);
    newParent.values->children.insert(to, values);
    newParent.item->insertRow(to, row);
    return u"move node "_s + words({values.id, from, newParent.values->id, to});
}

QString RandomDriver::sortNodes()
{
    if (!m_topology)
        return u"no nodes to sort"_s;
    m_topology->setSortRole(TopologyRole::NodeID);
    m_topology->sort(0);
    sortByID(m_reference.top);
    return u"sort nodes"_s;
}

QString RandomDriver::removeNode()
{
    if (!m_topology || !m_reference.hasTop)
        return u"no node to remove"_s;
    const Node parent = someNode();
    if (parent.values->children.isEmpty())
        return u"no node to remove"_s;
    const int row = below(static_cast<int>(parent.values->children.size()));
    const QString id = parent.values->children.takeAt(row).id;
    parent.item->removeRow(row);
    return u"remove node "_s + words({id});
}

QString RandomDriver::pairAnew()
{
    // The signals are connected already; once more, and each would come twice.
    const int connections = static_cast<int>(m_host->framework.connections().size());
    for (int number = 1; number <= 4; ++number)
        m_host->framework.refusedConnections.insert(connections + number);
    auto topology = std::make_unique<TopologyModel>();
    m_topology = topology.get();
    m_reference.hasTop = true;
    m_reference.top = randomNode(3);
    m_reference.top.id = u"top"_s;
    showTopology();
    m_host->topology.model = m_topology;
    m_host->plugin()->LoadPairPluginDone();
    m_reference.paired();
    // The former one ends while the plug-in holds the new one.
    m_ownTopology = std::move(topology);
    return u"pair anew"_s;
}

QString RandomDriver::endTopology()
{
    if (!m_ownTopology || !oneIn(2))
        return u"topology stays"_s;
    m_ownTopology.reset();
    m_topology = nullptr;
    m_host->topology.model = nullptr;
    m_reference.hasTop = false;
    return u"topology ends"_s;
}

QString RandomDriver::walk()
{
    m_host->invoke("initNodeStatusError");
    m_reference.walk();
    return u"walk"_s;
}

QStandardItemModel &RandomDriver::errorModel()
{
    return *qobject_cast<QStandardItemModel *>(m_host->errors());
}

QString RandomDriver::removeRowsBehind()
{
    const int rows = static_cast<int>(m_reference.errors.size());
    if (rows == 0)
        return u"no rows to remove"_s;
    const int first = below(rows);
    const int count = 1 + below(qMin(3, rows - first));
    errorModel().removeRows(first, count);
    m_reference.removeRows(first, count);
    return u"others remove rows "_s + words({first, count});
}

QString RandomDriver::moveRowBehind()
{
    const int rows = static_cast<int>(m_reference.errors.size());
    if (rows == 0)
        return u"no row to move"_s;
    const int from = below(rows);
    const int to = below(rows);
    errorModel().insertRow(to, errorModel().takeRow(from));
    m_reference.moveRow(from, to);
    return u"others move row "_s + words({from, to});
}

QString RandomDriver::changeRowBehind()
{
    if (m_reference.errors.isEmpty())
        return u"no row to change"_s;
    const int row = below(static_cast<int>(m_reference.errors.size()));
    const QModelIndex index = errorModel().index(row, 0);
    QString text;
    switch (below(3)) {
    case 0:
        text = oneOf(m_reference.errors).key;
        errorModel().setData(index, text, ErrorRole::UniqueID);
        m_reference.changeRow(row, &ReferenceError::key, text);
        break;
    case 1:
        text = oneOf(m_stationIDs);
        errorModel().setData(index, text, ErrorRole::StationID);
        m_reference.changeRow(row, &ReferenceError::stationID, text);
        break;
    default:
        text = nodeID();
        errorModel().setData(index, text, ErrorRole::DeviceID);
        m_reference.changeRow(row, &ReferenceError::deviceID, text);
    }
    const ReferenceError &error = m_reference.errors.at(row);
    return u"others change row "_s + words({row, error.key, error.stationID, error.deviceID});
}

QString RandomDriver::resetListBehind()
{
    if (!oneIn(4))
        return u"list stays"_s;
    errorModel().clear();
    m_reference.resetRows();
    return u"others reset the list"_s;
}

QString RandomDriver::reportVolume()
{
    const QString id = oneOf(m_stationIDs);
    if (oneIn(2)) {
        m_host->invoke("removeVolumeError", id);
        m_reference.volumesCleared(id);
        return u"clear volumes "_s + words({id});
    }
    m_host->invoke("monitorVolumeStatus", id);
    m_reference.volumeLost(id);
    return u"lose volume "_s + words({id});
}

QString RandomDriver::reportUsage()
{
    const int kind = below(3);
    const QString id = oneOf(m_stationIDs);
    const int usage = m_thresholds[kind] + below(5) - 2;
    const QString subID = kind == 2 ? oneOf(m_subIDs) : QString();
    if (kind == 0)
        m_host->invoke("monitorCPUUsage", id, usage);
    else if (kind == 1)
        m_host->invoke("monitorMemoryUsage", id, usage);
    else
        m_host->invoke("monitorNetworkUsage", id, usage, subID);
    m_reference.usage(kind, id, usage, subID);
    return u"usage "_s + words({kind, id, usage, subID});
}

QString RandomDriver::reportGroup()
{
    const QString id = oneOf(m_stationIDs);
    const QString groupID = oneOf(m_subIDs);
    if (oneIn(3)) {
        m_host->invoke("monitorSufficientRecordingGroup", id, groupID);
        m_reference.daysSufficient(id, groupID);
        return u"sufficient days "_s + words({id, groupID});
    }
    const QString name = oneOf(Names);
    m_host->invoke("monitorInsufficientRecordingDays", id, name, groupID);
    m_reference.daysInsufficient(id, name, groupID);
    return u"insufficient days "_s + words({id, name, groupID});
}

QString RandomDriver::recount()
{
    m_host->invoke("updateStationErrorNumber");
    m_reference.recount();
    return u"recount"_s;
}

QVariantMap RandomDriver::snoozeData()
{
    const qlonglong time = oneOf(ReferenceMonitor::knownTimes().keys());
    const bool isText = oneIn(4);
    return {{u"nodeID"_s, nodeID()},
            {u"type"_s, oneIn(6) ? below(10) - 1 : 3 + below(2)},
            {u"timestamp"_s, isText ? QVariant(QString::number(time)) : QVariant(time)}};
}

QString RandomDriver::requestSnooze()
{
    const QString id = nodeID();
    const qlonglong time = oneOf(ReferenceMonitor::knownTimes().keys());
    const int type = 3 + below(2);
    m_host->ask<bool>("setSnooze", id, time, type);
    m_reference.setSnooze(id, time, type);
    return u"request snooze "_s + words({id, time, type});
}

QString RandomDriver::answerSnooze()
{
    QVariantMap data = snoozeData();
    if (!m_reference.errors.isEmpty() && !oneIn(4)) {
        const ReferenceError error = oneOf(m_reference.errors);
        data[u"nodeID"_s] = error.type == 3 ? error.deviceID : error.stationID;
        data[u"type"_s] = error.type;
    }
    const QString code = oneOf(ResultCodes);
    m_host->respond(u"setSnooze"_s, data, code);
    m_reference.snoozeResponse(data, code);
    return u"answer snooze "_s + words({data, code});
}

QString RandomDriver::answerSnoozeList()
{
    QStringList ids;
    for (int count = below(4); count > 0; --count)
        ids.append(nodeID());
    m_host->respond(u"getSnoozeList"_s, ids);
    m_reference.snoozeListResponse(ids);
    return u"answer snooze list "_s + words({ids});
}

QString RandomDriver::sendSnoozeEvent()
{
    const QString name = oneIn(2) ? u"SnoozeError"_s : u"DeviceStillError"_s;
    const QVariant data = oneIn(20) ? QVariant(nodeID()) : QVariant(snoozeData());
    m_host->event(name, data);
    m_reference.event(name, data, {});
    return words({name, data});
}

QString RandomDriver::sendReleaseEvent()
{
    const QString id = nodeID();
    m_host->event(u"RemoveSnooze"_s, id);
    m_reference.event(u"RemoveSnooze"_s, id, {});
    return u"release snooze "_s + words({id});
}

QVariant RandomDriver::networkEntry()
{
    if (oneIn(20))
        return u"no map"_s;
    QVariantMap entry{{u"networkPercentage"_s, m_thresholds[2] + 0.3 * (below(15) - 7)},
                      {u"networkBandwidth"_s, below(1000)}};
    if (!oneIn(20))
        entry[u"networkInterface"_s] = oneOf(m_subIDs);
    return entry;
}

QString RandomDriver::sendResourceEvent()
{
    QVariantList networks;
    for (int count = below(5); count > 0; --count)
        networks.append(networkEntry());
    QVariant data = QVariantMap{{u"cpuPercentage"_s, m_thresholds[0] + below(5) - 2},
                                {u"memPercentage"_s, m_thresholds[1] + below(5) - 2},
                                {u"networkUsageList"_s, networks}};
    if (oneIn(15))
        data = networks;
    const QString id = oneIn(2) ? m_reference.focus : oneOf(m_stationIDs);
    m_host->event(u"SystemResChanged"_s, data, id);
    m_reference.event(u"SystemResChanged"_s, data, id);
    return u"resource event "_s + words({data, id});
}

QString RandomDriver::sendCapacityEvent()
{
    QVariant data = QVariantMap{{u"serverName"_s, oneOf(Names)},
                                {u"virtualSizePercentage"_s, below(1000) / 8.0}};
    if (oneIn(4))
        data = QVariantHash();
    m_host->event(u"ServerReachingLimited"_s, data);
    m_reference.event(u"ServerReachingLimited"_s, data, {});
    return u"capacity event "_s + words({data});
}

QString RandomDriver::sendOtherEvent()
{
    const QVariantMap data = snoozeData();
    m_host->event(u"snoozeError"_s, data);
    m_host->plugin()->EventProcessorEx(u"SnoozeError"_s, nullptr, 0, 0, 0, data, QString());
    m_host->respond(u"SetSnooze"_s, data);
    m_host->plugin()->CommandProcessorEx(u"setSnooze"_s, nullptr, data, nullptr, u"0"_s, QString(),
                                         false, QString());
    return u"other events "_s + words({data});
}

QString RandomDriver::changeFocus()
{
    const QString id = oneOf(m_stationIDs);
    m_host->object()->setProperty("focusStationResource", id);
    m_reference.setFocus(id);
    return u"focus "_s + words({id});
}

QString RandomDriver::askForSupport()
{
    const QString id = oneOf(m_stationIDs);
    m_host->ask<bool>("checkSupportSystemMonitor", id);
    m_reference.checkSupport(id);
    m_openQuestions.append(m_host->framework.commands().last().context);
    return u"ask for support "_s + words({id});
}

QString RandomDriver::answerSupport()
{
    if (m_openQuestions.isEmpty())
        return u"nothing to answer"_s;
    void *const context = m_openQuestions.takeAt(below(static_cast<int>(m_openQuestions.size())));
    const QString id = *static_cast<QString *>(context);
    const QString code = oneOf(ResultCodes);
    m_host->respond(u"isSupportSystemMonitor"_s, {}, code, context);
    m_reference.supportResponse(id, code);
    return u"answer support "_s + words({id, code});
}

QString RandomDriver::reconnect()
{
    if (oneIn(2)) {
        m_host->invoke("reconnectDisconnectSubstations");
        m_reference.reconnectSubstations();
        return u"reconnect sub-stations"_s;
    }
    m_host->invoke("reconnectDisconnectCameras");
    m_reference.reconnectCameras();
    return u"reconnect cameras"_s;
}

QString RandomDriver::changeConnection()
{
    if (oneIn(3)) {
        m_host->plugin()->PluginServerDisconnected();
        m_reference.serverDisconnected();
        return u"server disconnected"_s;
    }
    m_host->plugin()->PluginServerConnected();
    m_reference.serverConnected();
    return u"server connected"_s;
}

QString RandomDriver::changePlugins()
{
    m_reference.hasRecordingPlugin = !oneIn(3);
    m_reference.hasLogPlugin = !oneIn(3);
    QObject *const recording = m_reference.hasRecordingPlugin ? &m_host->recording : nullptr;
    QObject *const log = m_reference.hasLogPlugin ? &m_host->operationalLog : nullptr;
    m_host->framework.registerPlugin(PluginID::RecordingManagement, recording);
    m_host->framework.registerPlugin(PluginID::OperationalLog, log);
    return u"change plug-ins "_s + words({recording != nullptr, log != nullptr});
}

QString RandomDriver::addView()
{
    if (m_views.size() == 5)
        return u"views enough"_s;
    auto *const proxy = qobject_cast<QSortFilterProxyModel *>(
        m_host->ask<QObject *>("getSystemErrorSortFilterModel", &m_viewsOwner));
    new QAbstractItemModelTester(proxy, proxy);
    m_views.append({proxy, 3, {}, {}});
    return u"add view"_s;
}

QString RandomDriver::endView()
{
    if (m_views.isEmpty())
        return u"no view to end"_s;
    delete m_views.takeAt(below(static_cast<int>(m_views.size()))).proxy;
    return u"end view"_s;
}

QString RandomDriver::changeView()
{
    if (m_views.isEmpty())
        return u"no view to change"_s;
    DrivenView &view = m_views[below(static_cast<int>(m_views.size()))];
    switch (below(3)) {
    case 0:
        view.mask = below(4);
        QMetaObject::invokeMethod(view.proxy, "setErrorCategory", Q_ARG(int, view.mask));
        break;
    case 1:
        view.stationID = oneIn(2) ? QString() : oneOf(m_stationIDs);
        QMetaObject::invokeMethod(view.proxy, "setFilterParentStationID",
                                  Q_ARG(QString, view.stationID));
        break;
    default:
        view.text = oneOf(QStringList{u""_s, u"DISCONNECTED"_s, u"usage"_s, u"lobby"_s, u"駅"_s});
        view.proxy->setFilterRegularExpression(view.text);
    }
    return u"change view "_s + words({view.mask, view.stationID, view.text});
}
