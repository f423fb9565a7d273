#include "Screenshot.h"

#include "DashboardWindow.h"

#include <utility>

Screenshot::Screenshot(DashboardWindow &window, QString fileName)
    : m_window(window)
    , m_fileName(std::move(fileName))
{ }

bool Screenshot::take()
{
    m_isTaken = true;
    return m_window.saveImage(m_fileName);
}
