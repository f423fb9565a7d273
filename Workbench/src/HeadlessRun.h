#ifndef HEADLESSRUN_H
#define HEADLESSRUN_H

#include "ExitCode.h"
#include "QuietPeriod.h"

#include <QObject>
#include <QTimer>

#include <chrono>

class RunReport;
class Screenshot;
class Workbench;

/// Plays a scenario to its end without a user, waits until the error list has come to rest, and
/// ends the application.
class HeadlessRun : public QObject
{
    Q_OBJECT

public:
    /// @param report     follows the Workbench already
    /// @param screenshot to be taken on the way or in the end, or null
    HeadlessRun(Workbench &workbench, RunReport &report, Screenshot *screenshot);

    /// Ends the run when the server has not been connected for some time after the start. To be
    /// called before exec().
    void limitConnecting(std::chrono::milliseconds timeout);

    /// Runs the application. Returns its exit code: ErrorsRemain when the error list is not empty
    /// in the end, Failure when the picture could not be written, the server refused this client,
    /// was not connected in time or is not connected in the end, which weighs more.
    int exec();

private:
    void takeScreenshot();
    void giveUp();
    void end();

    Workbench &m_workbench;
    RunReport &m_report;
    Screenshot *m_screenshot;
    QuietPeriod m_quiet;
    QTimer m_patience; // until the server is connected for the first time
    int m_exitCode = ExitCode::Success;
};

#endif
