#ifndef SHUFFLED_H
#define SHUFFLED_H

#include <QList>

#include <algorithm>
#include <numeric>
#include <random>

/// The numbers from 0 up to @p count in random order; the same order in every run.
inline QList<int> shuffledNumbers(qsizetype count)
{
    QList<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
    return numbers;
}

#endif
