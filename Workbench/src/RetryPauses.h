#ifndef RETRYPAUSES_H
#define RETRYPAUSES_H

#include <QtGlobal>

#include <functional>

/// How long to wait before one try after another: longer and longer, up to a quarter of a minute,
/// and by chance up to half as long, so that many clients do not come back at the same moment.
class RetryPauses
{
public:
    /// Gives numbers from 0 up to, but not including, 1.
    using Random = std::function<double()>;

    explicit RetryPauses(Random random = systemRandom());

    /// The pause before the next try, in milliseconds.
    qint64 takeNextMs();

    /// Begins with short pauses again.
    void reset() { m_longestMs = FirstMs; }

private:
    static constexpr qint64 FirstMs = 250;
    static constexpr qint64 LastMs = 15'000;

    static Random systemRandom();

    Random m_random;
    qint64 m_longestMs = FirstMs; // of the next pause
};

#endif
