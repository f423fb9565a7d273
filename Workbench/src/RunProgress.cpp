#include "RunProgress.h"

#include "Clock.h"

#include <chrono>

namespace {

constexpr qint64 MsPerSecond = 1000;

} // namespace

RunProgress::RunProgress(StatusLine line, const Clock &clock, qint64 endMs)
    : m_line(std::move(line))
    , m_clock(clock)
    , m_startMs(clock.nowMs())
    , m_endMs(endMs)
{
    connect(&m_timer, &QTimer::timeout, this, &RunProgress::show);
    m_timer.start(std::chrono::seconds(1));
}

RunProgress::~RunProgress()
{
    m_line.clear();
}

void RunProgress::show() const
{
    const qint64 passedMs = m_clock.nowMs() - m_startMs;
    if (passedMs < m_endMs)
        m_line.show(tr("%1 of %2 s of the scenario")
                        .arg(passedMs / MsPerSecond)
                        .arg(m_endMs / MsPerSecond));
    else
        m_line.show(tr("waiting for the error list to come to rest"));
}
