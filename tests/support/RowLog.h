#ifndef ROWLOG_H
#define ROWLOG_H

#include <QObject>

class CallLog;
class QAbstractItemModel;

/// Logs what a model tells of the rows at its top once it is done: `insert rows 3 to 3`,
/// `remove rows 1 to 2`, `change rows 0 to 0, roles 263`, `reset rows`, `lay out rows`, `move
/// rows`.
class RowLog
{
public:
    /// The log must outlive this object; the model need not.
    RowLog(const QAbstractItemModel &model, CallLog &log);

private:
    QObject m_receiver;
};

#endif
