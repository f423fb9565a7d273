#include "Series.h"

#include <algorithm>
#include <cmath>

std::optional<double> Series::at(int size) const
{
    for (const Point &point : m_points) {
        if (point.size == size)
            return point.milliseconds;
    }
    return std::nullopt;
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
        exponent =
            std::max(1.0, std::log(last.milliseconds / previous.milliseconds) / std::log(sizes));
    }
    return last.milliseconds * std::pow(static_cast<double>(size) / last.size, exponent);
}

std::optional<double> Series::growth(int size) const
{
    for (qsizetype i = 1; i < m_points.size(); ++i) {
        if (m_points.at(i).size == size)
            return m_points.at(i).milliseconds / m_points.at(i - 1).milliseconds;
    }
    return std::nullopt;
}
