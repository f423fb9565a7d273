#include "CameraWatch.h"

#include "CameraProbe.h"
#include "NodePresence.h"

#include <algorithm>

CameraWatch::CameraWatch(SiteServer &server, CameraPace pace, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_pace(pace)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &CameraWatch::proceed);
}

void CameraWatch::add(const Camera &camera)
{
    auto *const presence =
        new NodePresence(m_server, NodeType::Camera, camera.id, m_pace.lostAfter, this);
    connect(presence, &NodePresence::lost, this, &CameraWatch::lost);
    connect(presence, &NodePresence::back, this, &CameraWatch::back);
    m_turns.push_back({camera.address, presence, 0});
}

// All that starts again with a site goes on as it is.
void CameraWatch::start()
{
    if (m_time.isValid())
        return;
    m_time.start();
    const auto count = static_cast<qint64>(m_turns.size());
    for (qint64 i = 0; i < count; ++i)
        m_turns[static_cast<std::size_t>(i)].dueMs = i * m_pace.interval.count() / count;
    proceed();
}

void CameraWatch::proceed()
{
    while (!m_turns.empty() && m_underWay < m_pace.atATime
           && m_turns.front().dueMs <= m_time.elapsed()) {
        const Turn turn = m_turns.front();
        m_turns.pop_front();
        probe(turn);
    }
    // With all attempts under way the end of one leads on.
    if (!m_turns.empty() && m_underWay < m_pace.atATime)
        m_timer.start(std::chrono::milliseconds(
            std::max<qint64>(0, m_turns.front().dueMs - m_time.elapsed())));
}

void CameraWatch::probe(const Turn &turn)
{
    ++m_underWay;
    auto *const probe = new CameraProbe(turn.address, m_pace.timeout, this);
    connect(probe, &CameraProbe::answered, this, [this, probe, turn] {
        turn.presence->answered();
        finish(probe, turn);
    });
    connect(probe, &CameraProbe::failed, this, [this, probe, turn](const QString &reason) {
        turn.presence->failed(reason);
        finish(probe, turn);
    });
    probe->start();
}

// What is added at the end is due last: every camera waits as long.
void CameraWatch::finish(CameraProbe *probe, Turn turn)
{
    probe->deleteLater();
    --m_underWay;
    turn.dueMs = m_time.elapsed() + m_pace.interval.count();
    m_turns.push_back(turn);
    proceed();
}
