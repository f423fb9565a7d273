#include "ErrorTally.h"

void ErrorTally::raised(const ListedError &error)
{
    Counts &counts = m_counts[error.type];
    counts.name = error.name;
    ++counts.raised;
}

void ErrorTally::cleared(const ListedError &error)
{
    Counts &counts = m_counts[error.type];
    counts.name = error.name;
    ++counts.cleared;
}

ErrorTally::Counts ErrorTally::total() const
{
    Counts total;
    for (const Counts &counts : m_counts) {
        total.raised += counts.raised;
        total.cleared += counts.cleared;
    }
    return total;
}
