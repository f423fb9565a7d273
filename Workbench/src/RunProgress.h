#ifndef RUNPROGRESS_H
#define RUNPROGRESS_H

#include "StatusLine.h"

#include <QObject>
#include <QTimer>

#include <functional>

class JournalPlayer;
class ScenarioDriver;

/// Shows each second how far a scenario or a journal has been played, or what it waits for, until
/// the object is gone.
class RunProgress : public QObject
{
    Q_OBJECT

public:
    /// @param driver plays the scenario; it must outlive the object
    RunProgress(StatusLine line, const ScenarioDriver &driver);
    /// @param player plays the journal; it must outlive the object
    RunProgress(StatusLine line, const JournalPlayer &player);
    ~RunProgress() override;

    RunProgress(const RunProgress &) = delete;
    RunProgress &operator=(const RunProgress &) = delete;

    void show() const;

private:
    using Text = std::function<QString()>;

    RunProgress(StatusLine line, Text text);

    const StatusLine m_line;
    const Text m_text;
    QTimer m_timer;
};

#endif
