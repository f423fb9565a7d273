#include "HeadlessRun.h"

#include "ConsoleReport.h"
#include "Screenshot.h"
#include "Workbench.h"

#include <QCoreApplication>

HeadlessRun::HeadlessRun(Workbench &workbench, ConsoleReport &report, Screenshot *screenshot)
    : m_workbench(workbench)
    , m_report(report)
    , m_screenshot(screenshot)
    , m_quiet(workbench.surface().errorModel())
{
    connect(&workbench.topology(), &TopologyPlugin::camStatusRetrievedChanged, &m_quiet,
            &QuietPeriod::expectWalk);
    connect(&workbench.driver(), &ScenarioDriver::screenshotDue, this,
            &HeadlessRun::takeScreenshot);
    connect(&workbench.driver(), &ScenarioDriver::finished, &m_quiet, &QuietPeriod::start);
    connect(&m_quiet, &QuietPeriod::reached, this, &HeadlessRun::end);
}

int HeadlessRun::exec()
{
    m_workbench.start();
    return QCoreApplication::exec();
}

void HeadlessRun::takeScreenshot()
{
    if (!m_screenshot || m_screenshot->isTaken())
        return;
    if (m_screenshot->take()) {
        m_report.writeLine(tr("picture"), tr("saved as %1").arg(m_screenshot->fileName()));
    } else {
        m_report.writeLine(tr("picture"), tr("%1 cannot be written").arg(m_screenshot->fileName()));
        m_exitCode = ExitCode::Failure;
    }
}

void HeadlessRun::end()
{
    takeScreenshot();
    m_report.writeSummary();
    if (m_exitCode == ExitCode::Success && !m_workbench.errorWatch().listed().isEmpty())
        m_exitCode = ExitCode::ErrorsRemain;
    QCoreApplication::exit(m_exitCode);
}
