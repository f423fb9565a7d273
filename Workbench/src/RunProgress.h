#ifndef RUNPROGRESS_H
#define RUNPROGRESS_H

#include "StatusLine.h"

#include <QObject>
#include <QTimer>

class ScenarioDriver;

/// Shows each second how far a scenario has been played, or what it waits for, until the object is
/// gone.
class RunProgress : public QObject
{
    Q_OBJECT

public:
    /// @param driver plays the scenario; it must outlive the object
    RunProgress(StatusLine line, const ScenarioDriver &driver);
    ~RunProgress() override;

    void show() const;

private:
    QString text() const;

    const StatusLine m_line;
    const ScenarioDriver &m_driver;
    QTimer m_timer;
};

#endif
