#include "RunProgress.h"

#include "JournalPlayer.h"
#include "ScenarioDriver.h"

#include <chrono>
#include <utility>

namespace {

constexpr qint64 MsPerSecond = 1000;

// The scenario starts once the server is connected.
QString progressOf(const ScenarioDriver &driver)
{
    const std::optional<qint64> elapsedMs = driver.elapsedMs();
    if (!elapsedMs)
        return RunProgress::tr("waiting for the server");
    if (*elapsedMs >= driver.endMs())
        return RunProgress::tr("waiting for the error list to come to rest");
    return RunProgress::tr("%1 of %2 s of the scenario")
        .arg(*elapsedMs / MsPerSecond)
        .arg(driver.endMs() / MsPerSecond);
}

QString progressOf(const JournalPlayer &player)
{
    return RunProgress::tr("%1 of %2 entries of the journal")
        .arg(player.playedCount())
        .arg(player.entryCount());
}

} // namespace

RunProgress::RunProgress(StatusLine line, const ScenarioDriver &driver)
    : RunProgress(std::move(line), [&driver] { return progressOf(driver); })
{ }

RunProgress::RunProgress(StatusLine line, const JournalPlayer &player)
    : RunProgress(std::move(line), [&player] { return progressOf(player); })
{ }

RunProgress::RunProgress(StatusLine line, Text text)
    : m_line(std::move(line))
    , m_text(std::move(text))
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
    m_line.show(m_text());
}
