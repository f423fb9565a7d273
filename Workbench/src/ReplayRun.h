#ifndef REPLAYRUN_H
#define REPLAYRUN_H

#include <QCoreApplication>

class JournalPlayer;
class QTextStream;
struct Journal;

/// Plays a journal to its end, writes the error list as it is then, and compares it with the one
/// that the journal ends with.
class ReplayRun
{
    Q_DECLARE_TR_FUNCTIONS(ReplayRun)

public:
    /// @param player plays this journal
    /// @param out    takes the list; all must outlive the run
    /// @param lasts  whether the run lasts until the user ends it, not until the journal does
    ReplayRun(JournalPlayer &player, const Journal &journal, QTextStream &out, bool lasts = false);

    /// Runs the application. Returns its exit code: Success, also for a journal that was cut off,
    /// which is said; Failure when the lists differ. Throws InputError when the journal contradicts
    /// itself.
    int exec();

private:
    int writeOutcome();

    JournalPlayer &m_player;
    const Journal &m_journal;
    QTextStream &m_out;
    const bool m_lasts;
    int m_code = 0;
    int m_failedLine = 0; ///< of the journal; 0 while none failed
};

#endif
