#include "RunProgress.h"

#include "ScenarioDriver.h"

#include <chrono>

namespace {

constexpr qint64 MsPerSecond = 1000;

} // namespace

RunProgress::RunProgress(StatusLine line, const ScenarioDriver &driver)
    : m_line(std::move(line))
    , m_driver(driver)
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
    m_line.show(text());
}

// The scenario starts once the server is connected.
QString RunProgress::text() const
{
    const std::optional<qint64> elapsedMs = m_driver.elapsedMs();
    if (!elapsedMs)
        return tr("waiting for the server");
    if (*elapsedMs >= m_driver.endMs())
        return tr("waiting for the error list to come to rest");
    return tr("%1 of %2 s of the scenario")
        .arg(*elapsedMs / MsPerSecond)
        .arg(m_driver.endMs() / MsPerSecond);
}
