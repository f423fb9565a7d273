#ifndef STOPWATCH_H
#define STOPWATCH_H

/// Counts the CPU time of the thread from its construction on.
///
/// Nothing that is timed here waits, so on a quiet machine this is the time that passes; on a busy
/// one it leaves out what other programs take.
class StopWatch
{
public:
    StopWatch();

    double milliseconds() const;

private:
    double m_start;
};

#endif
