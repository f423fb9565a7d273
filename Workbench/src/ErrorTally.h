#ifndef ERRORTALLY_H
#define ERRORTALLY_H

#include "ErrorListWatch.h"

#include <QMap>

/// Counts what has happened in an error list, by the kind of error.
class ErrorTally
{
public:
    struct Counts
    {
        QString name; ///< of the kind of error
        int raised = 0;
        int cleared = 0;

        int listed() const { return raised - cleared; }
    };

    void raised(const ListedError &error);
    void cleared(const ListedError &error);

    /// The counts of every kind that has occurred, by its number.
    const QMap<int, Counts> &counts() const { return m_counts; }

    /// All kinds taken together, without a name.
    Counts total() const;

private:
    QMap<int, Counts> m_counts;
};

#endif
