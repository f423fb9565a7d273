#include "WindowRun.h"

#include "DashboardWindow.h"
#include "ExitCode.h"
#include "Screenshot.h"
#include "ServerLink.h"
#include "Workbench.h"

#include <QCoreApplication>
#include <QDebug>

WindowRun::WindowRun(Workbench &workbench, DashboardWindow &window, Screenshot *screenshot,
                     bool isLooped)
    : m_workbench(workbench)
    , m_window(window)
    , m_screenshot(screenshot)
{
    ScenarioDriver &driver = workbench.driver();
    connect(&driver, &ScenarioDriver::screenshotDue, this, &WindowRun::takeScreenshot);
    connect(&driver, &ScenarioDriver::finished, this, &WindowRun::takeScreenshot);
    connect(&workbench.link(), &ServerLink::refused, this, &WindowRun::showRefusal);
    connect(&workbench, &Workbench::nodeLost, this,
            [](const QString &nodeId, const QString &reason) {
                qWarning().noquote() << tr("%1 does not answer: %2").arg(nodeId, reason);
            });
    connect(&workbench, &Workbench::nodeBack, this,
            [](const QString &nodeId) { qInfo().noquote() << tr("%1 answers").arg(nodeId); });
    if (isLooped)
        connect(&driver, &ScenarioDriver::finished, &workbench, &Workbench::start);
}

int WindowRun::exec()
{
    m_window.show();
    m_workbench.start();
    const int code = QCoreApplication::exec();
    return m_hasFailed ? ExitCode::Failure : code;
}

void WindowRun::takeScreenshot()
{
    if (!m_screenshot || m_screenshot->isTaken())
        return;
    if (m_screenshot->take()) {
        qInfo().noquote() << tr("Picture saved as %1").arg(m_screenshot->fileName());
    } else {
        qWarning().noquote() << tr("%1 cannot be written").arg(m_screenshot->fileName());
        m_hasFailed = true;
    }
}

void WindowRun::showRefusal(const QString &reason)
{
    const QString text = tr("The server refuses this client: %1").arg(reason);
    qWarning().noquote() << text;
    m_window.setTitle(text);
}
