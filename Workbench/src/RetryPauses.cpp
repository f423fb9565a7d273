#include "RetryPauses.h"

#include <QRandomGenerator>

#include <algorithm>
#include <utility>

RetryPauses::RetryPauses(Random random)
    : m_random(std::move(random))
{ }

qint64 RetryPauses::takeNextMs()
{
    const qint64 longest = std::exchange(m_longestMs, std::min(2 * m_longestMs, LastMs));
    const auto half = static_cast<double>(longest) / 2;
    return static_cast<qint64>(half + half * m_random());
}

RetryPauses::Random RetryPauses::systemRandom()
{
    return [] { return QRandomGenerator::global()->generateDouble(); };
}
