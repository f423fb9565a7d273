#include "NodePresence.h"

#include "SiteServer.h"

NodePresence::NodePresence(SiteServer &server, NodeType type, const QString &nodeId, int lostAfter,
                           QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_type(type)
    , m_nodeId(nodeId)
    , m_lostAfter(lostAfter)
{ }

void NodePresence::answered()
{
    m_failures = 0;
    if (!isIn(false))
        return;
    setConnected(true);
    Q_EMIT back(m_nodeId);
}

void NodePresence::failed(const QString &reason)
{
    if (m_failures < m_lostAfter)
        ++m_failures;
    if (m_failures < m_lostAfter || !isIn(true))
        return;
    setConnected(false);
    Q_EMIT lost(m_nodeId, reason);
}

// Whether the server knows the node in this state.
bool NodePresence::isIn(bool connected) const
{
    const Site &site = m_server.site();
    if (m_type == NodeType::Camera) {
        const Camera *const camera = site.findCamera(m_nodeId);
        return camera && camera->connected == connected;
    }
    const Station *const station = site.findStation(m_nodeId);
    return station && station->connected == connected;
}

void NodePresence::setConnected(bool connected)
{
    if (m_type == NodeType::Camera)
        m_server.setCameraConnected(m_nodeId, connected);
    else
        m_server.setStationConnected(m_nodeId, connected);
}
