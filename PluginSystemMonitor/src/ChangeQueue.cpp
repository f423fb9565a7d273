#include "ChangeQueue.h"

#include <QObject>
#include <QScopedValueRollback>

ChangeQueue::ChangeQueue(QObject *owner, std::function<bool()> isChangedByOthers)
    : m_owner(owner)
    , m_isChangedByOthers(std::move(isChangedByOthers))
{ }

bool ChangeQueue::isBusy() const
{
    return m_changes > 0 || (!m_calls.isEmpty() && !m_doesPostponed) || m_isChangedByOthers();
}

void ChangeQueue::postpone(Call call)
{
    m_calls.append(std::move(call));
    if (m_changes == 0)
        QMetaObject::invokeMethod(
            m_owner, [this] { doPostponed(); }, Qt::QueuedConnection);
}

void ChangeQueue::doPostponed()
{
    if (m_changes > 0 || m_doesPostponed || m_isChangedByOthers())
        return;
    const QScopedValueRollback<bool> guard(m_doesPostponed, true);
    while (!m_calls.isEmpty())
        m_calls.takeFirst()();
}
