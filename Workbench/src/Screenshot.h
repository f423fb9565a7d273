#ifndef SCREENSHOT_H
#define SCREENSHOT_H

#include <QString>

class DashboardWindow;

/// A picture of the dashboard that is to be taken once.
class Screenshot
{
public:
    /// @param window is shown when the picture is taken, and outlives this object
    Screenshot(DashboardWindow &window, QString fileName);

    const QString &fileName() const { return m_fileName; }

    bool isTaken() const { return m_isTaken; }

    /// Takes the picture; false when it cannot be written.
    bool take();

private:
    DashboardWindow &m_window;
    QString m_fileName;
    bool m_isTaken = false;
};

#endif
