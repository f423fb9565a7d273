#ifndef WINDOWRUN_H
#define WINDOWRUN_H

#include <QObject>

class DashboardWindow;
class Screenshot;
class Workbench;

/// Plays a scenario behind the dashboard's window until the user closes it.
class WindowRun : public QObject
{
    Q_OBJECT

public:
    /// @param screenshot to be taken on the way or at the scenario's end, or null
    /// @param isLooped   whether the scenario starts again whenever it has ended
    WindowRun(Workbench &workbench, DashboardWindow &window, Screenshot *screenshot, bool isLooped);

    /// Shows the window and runs the application. Returns its exit code: Success, or Failure
    /// when the picture could not be written.
    int exec();

private:
    void takeScreenshot();
    void showRefusal(const QString &reason);

    Workbench &m_workbench;
    DashboardWindow &m_window;
    Screenshot *m_screenshot;
    bool m_hasFailed = false;
};

#endif
