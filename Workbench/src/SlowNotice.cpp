#include "SlowNotice.h"

#include <utility>

SlowNotice::SlowNotice(StatusLine line, QString text, std::chrono::milliseconds patience)
    : m_line(std::move(line))
    , m_text(std::move(text))
    , m_thread([this, patience] { wait(patience); })
{ }

SlowNotice::~SlowNotice()
{
    m_done.release();
    m_thread.join();
}

void SlowNotice::wait(std::chrono::milliseconds patience)
{
    if (m_done.tryAcquire(1, static_cast<int>(patience.count())))
        return;
    m_line.show(m_text);
    m_done.acquire();
    m_line.clear();
}
