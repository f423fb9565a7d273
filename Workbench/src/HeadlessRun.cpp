#include "HeadlessRun.h"

#include "RunReport.h"
#include "Screenshot.h"
#include "ServerLink.h"
#include "Workbench.h"

#include <QCoreApplication>

HeadlessRun::HeadlessRun(Workbench &workbench, RunReport &report, Screenshot *screenshot)
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
    connect(&workbench.link(), &ServerLink::refused, this, [this] {
        m_exitCode = ExitCode::Failure;
        end();
    });
}

void HeadlessRun::limitConnecting(std::chrono::milliseconds timeout)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(timeout);
    connect(&m_patience, &QTimer::timeout, this, &HeadlessRun::giveUp);
    connect(&m_workbench.link(), &ServerLink::opened, &m_patience, &QTimer::stop);
    m_patience.start();
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
    const bool isSaved = m_screenshot->take();
    m_report.writePicture(m_screenshot->fileName(), isSaved);
    if (!isSaved)
        m_exitCode = ExitCode::Failure;
}

void HeadlessRun::giveUp()
{
    m_report.writeConnectTimeout(m_patience.interval());
    end();
}

void HeadlessRun::end()
{
    takeScreenshot();
    m_report.writeSummary();
    // Without a connection an empty list says nothing of the site.
    if (!m_workbench.link().isOpen())
        m_exitCode = ExitCode::Failure;
    if (m_exitCode == ExitCode::Success && !m_workbench.errorWatch().listed().isEmpty())
        m_exitCode = ExitCode::ErrorsRemain;
    QCoreApplication::exit(m_exitCode);
}
