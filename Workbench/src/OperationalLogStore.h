#ifndef OPERATIONALLOGSTORE_H
#define OPERATIONALLOGSTORE_H

#include <QCoreApplication>
#include <QDateTime>
#include <QList>
#include <QString>
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
/// Table "operational_log": "id" (ascending), "time" (milliseconds since the epoch), "name", and
/// "parameters" (a JSON list).
class OperationalLogStore
{
    Q_DECLARE_TR_FUNCTIONS(OperationalLogStore)

public:
    /// Opens a file, which is made if need be; an empty name keeps the log in memory. Throws
    /// InputError when the file cannot be used.
    explicit OperationalLogStore(const QString &fileName);
    ~OperationalLogStore();

    OperationalLogStore(const OperationalLogStore &) = delete;
    OperationalLogStore &operator=(const OperationalLogStore &) = delete;

    /// Adds an entry; false when it could not be written.
    bool add(const OperationalLogEntry &entry);

    /// The newest entries first.
    QList<OperationalLogEntry> newest(int limit) const;

    /// The newest of those entries that are accepted.
    QList<OperationalLogEntry>
    newest(int limit, const std::function<bool(const OperationalLogEntry &)> &accepts) const;

private:
    QString m_connectionName;
};

#endif
