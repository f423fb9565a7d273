#include "Series.h"

#include <algorithm>
#include <cmath>

qsizetype Series::indexOf(int size) const
{
    const auto it = std::find_if(m_points.cbegin(), m_points.cend(),
                                 [size](const Point &point) { return point.size == size; });
    return it == m_points.cend() ? -1 : it - m_points.cbegin();
}

void Series::add(int size, double milliseconds)
{
    const qsizetype index = indexOf(size);
    if (index < 0) {
        m_points.append({size, milliseconds, milliseconds});
        return;
    }
    Point &point = m_points[index];
    point.best = std::min(point.best, milliseconds);
    point.spent += milliseconds;
}

std::optional<double> Series::at(int size) const
{
    const qsizetype index = indexOf(size);
    return index < 0 ? std::nullopt : std::optional(m_points.at(index).best);
}

double Series::spent(int size) const
{
    const qsizetype index = indexOf(size);
    return index < 0 ? 0 : m_points.at(index).spent;
}

double Series::expected(int size) const
{
    if (m_points.isEmpty())
        return 0;
    const Point &last = m_points.last();
    double exponent = 2;
    if (m_points.size() > 1) {
        const Point &previous = m_points.at(m_points.size() - 2);
        const double sizes = static_cast<double>(last.size) / previous.size;
        exponent = std::max(1.0, std::log(last.best / previous.best) / std::log(sizes));
    }
    return last.best * std::pow(static_cast<double>(size) / last.size, exponent);
}

std::optional<double> Series::growth(int size) const
{
    const qsizetype index = indexOf(size);
    return index < 1 ? std::nullopt
                     : std::optional(m_points.at(index).best / m_points.at(index - 1).best);
}
