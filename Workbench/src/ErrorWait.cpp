#include "ErrorWait.h"

#include "ErrorListWatch.h"
#include "ScenarioDriver.h"

#include <algorithm>

ErrorWait::ErrorWait(const ErrorListWatch &watch, ScenarioDriver &driver, int patienceMs)
    : m_watch(watch)
    , m_driver(driver)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patienceMs);
    connect(&watch, &ErrorListWatch::raised, this, [this](const ListedError &error) {
        if (error.key == m_key)
            stop();
    });
    connect(&m_patience, &QTimer::timeout, this, [this] {
        Q_EMIT gaveUp(m_key);
        stop();
    });
}

void ErrorWait::start(const QString &key)
{
    const QList<ListedError> listed = m_watch.listed();
    if (std::any_of(listed.begin(), listed.end(),
                    [&key](const ListedError &error) { return error.key == key; }))
        return;
    m_key = key;
    m_patience.start();
    m_driver.hold();
}

void ErrorWait::stop()
{
    m_key.clear();
    m_patience.stop();
    m_driver.resume();
}
