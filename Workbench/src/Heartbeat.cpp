#include "Heartbeat.h"

#include "Clock.h"

Heartbeat::Heartbeat(Clock &clock, const Pace &pace, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
    , m_pace(pace)
{ }

Heartbeat::~Heartbeat() = default;

void Heartbeat::start()
{
    m_run = std::make_unique<QObject>();
    m_unanswered = 0;
    beat();
}

void Heartbeat::stop()
{
    m_run.reset();
}

void Heartbeat::beat()
{
    if (m_unanswered >= m_pace.patience) {
        stop();
        Q_EMIT fellSilent();
        return;
    }
    ++m_unanswered;
    m_clock.callAfter(m_pace.intervalMs, m_run.get(), [this] { beat(); });
    Q_EMIT pingDue();
}
