#ifndef TRACELINES_H
#define TRACELINES_H

#include "TestTraceLibrary.h"

#include <QStringList>

/// What the code under test wrote to the test trace library, one text a line.
///
/// The library is found through LD_LIBRARY_PATH; without it there is no journal and no line.
class TraceLines
{
public:
    /// Forgets what was written before.
    TraceLines();

    /// Null when there is no library.
    TraceJournal *journal() const { return m_library.journal(); }

    /// Level and text of every message since the last take(), as `5 Init, Enter`; forgets them.
    QStringList take();

    /// The id that a module got when it registered; 0 for a module that did not.
    int moduleID(const QString &moduleName) const;

private:
    TestTraceLibrary m_library;
};

#endif
