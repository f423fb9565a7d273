#ifndef SERIES_H
#define SERIES_H

#include <QList>

#include <optional>

/// How long one scenario takes, size by size. Sizes come in ascending order; each may be measured
/// again later, and counts with its best time.
class Series
{
public:
    void add(int size, double milliseconds);

    /// The best time of a size in milliseconds, if it was measured.
    std::optional<double> at(int size) const;
    /// How many milliseconds the repetitions of a size took together; 0 before the first.
    double spent(int size) const;

    /// How long a further size will take, in milliseconds, judged by the sizes so far: by their
    /// growth, or by the square of the size after the first. Nothing is expected before that.
    double expected(int size) const;

    /// How many times as long as the size measured before this size takes, if both were measured.
    std::optional<double> growth(int size) const;

private:
    struct Point
    {
        int size;
        double best;
        double spent;
    };

    qsizetype indexOf(int size) const;

    QList<Point> m_points;
};

#endif
