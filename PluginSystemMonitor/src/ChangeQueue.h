#ifndef CHANGEQUEUE_H
#define CHANGEQUEUE_H

#include <QList>

#include <functional>

class QObject;

/// Lets each change of a model end before the next one begins. Whoever is told of a change may
/// order others, and a view may tell of it while its own rows are half changed: what they order
/// waits until everybody was told.
///
/// Not for several threads.
class ChangeQueue
{
public:
    using Call = std::function<void()>;

    /// @param owner             the object that this is a member of
    /// @param isChangedByOthers tells whether others are in the middle of a change of the model
    explicit ChangeQueue(
        QObject *owner, std::function<bool()> isChangedByOthers = [] { return false; });

    /// Whether a call that changes the model has to wait, and is to be postponed: a change is under
    /// way, or earlier calls still wait.
    bool isBusy() const;
    /// Changes the model, and then does what was postponed meanwhile.
    template <typename Change> void perform(Change change)
    {
        ++m_changes;
        change();
        --m_changes;
        doPostponed();
    }
    /// Does a call after the change that is under way; when others make that, from the event loop.
    void postpone(Call call);

private:
    void doPostponed();

    QObject *m_owner;
    std::function<bool()> m_isChangedByOthers;
    QList<Call> m_calls;
    int m_changes = 0;
    bool m_doesPostponed = false;
};

#endif
