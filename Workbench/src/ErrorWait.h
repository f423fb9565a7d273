#ifndef ERRORWAIT_H
#define ERRORWAIT_H

#include <QObject>
#include <QTimer>

class ErrorListWatch;
class ScenarioDriver;

/// Holds a scenario until an error is listed.
///
/// However fast a scenario is played, the plug-in's own delays take as long as ever; what can only
/// happen after one of them waits for what it brings. An error that does not come is waited for
/// half a minute of real time, then the scenario goes on.
class ErrorWait : public QObject
{
    Q_OBJECT

public:
    /// @param watch      tells what is listed
    /// @param driver     plays the scenario; both must outlive the wait
    /// @param patienceMs in real time
    ErrorWait(const ErrorListWatch &watch, ScenarioDriver &driver, int patienceMs = 30'000);

    /// Holds the scenario from now on, unless the error is listed already.
    void start(const QString &key);

Q_SIGNALS:
    /// The error has not come, the scenario is about to go on.
    void gaveUp(const QString &key);

private:
    void stop();

    const ErrorListWatch &m_watch;
    ScenarioDriver &m_driver;
    QString m_key; // empty: nothing is waited for
    QTimer m_patience;
};

#endif
