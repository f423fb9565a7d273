#ifndef SLOWNOTICE_H
#define SLOWNOTICE_H

#include "StatusLine.h"

#include <QSemaphore>
#include <QString>

#include <chrono>
#include <thread>

/// Tells what the program is busy with, once that has taken a second, for as long as this object
/// lives.
class SlowNotice
{
public:
    /// @param line is written to on another thread, and by nobody else meanwhile
    SlowNotice(StatusLine line, QString text,
               std::chrono::milliseconds patience = std::chrono::seconds(1));
    ~SlowNotice();

    SlowNotice(const SlowNotice &) = delete;
    SlowNotice &operator=(const SlowNotice &) = delete;

private:
    void wait(std::chrono::milliseconds patience);

    const StatusLine m_line;
    const QString m_text;
    QSemaphore m_done;
    std::thread m_thread;
};

#endif
