#ifndef OPERATIONALLOGSTORE_H
#define OPERATIONALLOGSTORE_H

#include <QCoreApplication>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QTimer>
#include <QVariantList>

#include <functional>

/// One entry of the operational log.
struct OperationalLogEntry
{
    QDateTime time;
    QString name;            ///< what was done
    QVariantList parameters; ///< to whom and how, in the order of the writer
};

/// The operational log, kept in an SQLite file.
///
/// Entries are written from the event loop, together with others of the same turn.
///
/// Table "operational_log": "id" (ascending), "time" (milliseconds since the epoch), "name", and
/// "parameters" (a JSON list).
class OperationalLogStore
{
    Q_DECLARE_TR_FUNCTIONS(OperationalLogStore)

public:
    /// Older entries are not searched, and go when the file is opened.
    static constexpr int MaxEntries = 10'000;

    /// Opens a file, which is made if need be; an empty name keeps the log in memory. Throws
    /// InputError, and leaves the file as it is, when it is of another kind or cannot be used.
    explicit OperationalLogStore(const QString &fileName);
    ~OperationalLogStore();

    OperationalLogStore(const OperationalLogStore &) = delete;
    OperationalLogStore &operator=(const OperationalLogStore &) = delete;

    /// Adds an entry; false, the first time with a warning, when it could not be written.
    bool add(const OperationalLogEntry &entry);

    /// The newest entries first.
    QList<OperationalLogEntry> newest(int limit) const;

    /// The newest of those entries that are accepted.
    QList<OperationalLogEntry>
    newest(int limit, const std::function<bool(const OperationalLogEntry &)> &accepts) const;

private:
    void open();
    QVariant run(const QString &statement, const QVariant &value = {});
    void commitLater();
    void commit();
    bool report(bool isWritten, const QString &failure);

    const QString m_fileName;
    const QString m_connectionName;
    QTimer m_commitDue;
    bool m_hasUncommitted = false;
    bool m_hasWarned = false;
};

#endif
