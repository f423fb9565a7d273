#ifndef SNOOZESTORE_H
#define SNOOZESTORE_H

#include "SnoozeList.h"

#include <QCoreApplication>

#include <functional>

class QSqlQuery;

/// The snoozes of a site in an SQLite file that outlives the process, however that ends.
///
/// A change is on the disk when its call returns true. The file belongs to one process at a time.
///
/// Table "snoozes": "node_id", "error_type" and "end_seconds", as in Snooze.
class SnoozeStore
{
    Q_DECLARE_TR_FUNCTIONS(SnoozeStore)

public:
    /// Opens a file, which is made if need be; its folder must be there. Throws InputError, and
    /// leaves the file as it is, when it is damaged, of another kind, in use by another process or
    /// cannot be written.
    explicit SnoozeStore(const QString &fileName);
    ~SnoozeStore();

    SnoozeStore(const SnoozeStore &) = delete;
    SnoozeStore &operator=(const SnoozeStore &) = delete;

    /// All that is kept, in ascending order of the node ids.
    std::vector<Snooze> snoozes() const;

    /// Keeps snoozes, each in place of an earlier one of the same node, all or none. False, with a
    /// warning that names the file, when they could not be written; then nothing has changed.
    bool set(const std::vector<Snooze> &snoozes);

    /// Forgets the snoozes of some nodes, all or none. False, with a warning, as above.
    bool remove(const QStringList &nodeIds);

private:
    void open();
    bool inTransaction(const std::function<bool(QSqlQuery &)> &change);
    bool report(bool isWritten, const QString &failure) const;

    const QString m_fileName;
    const QString m_connectionName;
};

#endif
