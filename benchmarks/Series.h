#ifndef SERIES_H
#define SERIES_H

#include <QList>

#include <optional>

/// How long one scenario takes, size by size in ascending order.
class Series
{
public:
    void add(int size, double milliseconds) { m_points.append({size, milliseconds}); }

    /// The milliseconds at a size, if it was measured.
    std::optional<double> at(int size) const;

    /// How long a further size will take, in milliseconds, judged by the sizes so far: by their
    /// growth, or by the square of the size after the first. Nothing is expected before that.
    double expected(int size) const;

    /// How many times as long as the size measured before this size takes, if both were measured.
    std::optional<double> growth(int size) const;

private:
    struct Point
    {
        int size;
        double milliseconds;
    };

    QList<Point> m_points;
};

#endif
