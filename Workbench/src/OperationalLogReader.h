#ifndef OPERATIONALLOGREADER_H
#define OPERATIONALLOGREADER_H

#include <QObject>
#include <QVariantList>

class OperationalLogPlugin;
class OperationalLogStore;

/// The operational log as the dashboard reads it.
class OperationalLogReader : public QObject
{
    Q_OBJECT

public:
    /// @param plugin tells of new entries; both must outlive the reader
    OperationalLogReader(const OperationalLogStore &log, const OperationalLogPlugin &plugin,
                         QObject *parent = nullptr);

    /// The newest entries first, at most as many as the limit says: one map for each, with "time"
    /// (milliseconds since the epoch), "name" (in the user's language) and "parameters" (texts).
    ///
    /// @param text what the name or a parameter of an entry contains, whatever the case; empty for
    ///             all entries
    Q_INVOKABLE QVariantList newest(int limit, const QString &text) const;

Q_SIGNALS:
    /// There are new entries.
    void changed();

private:
    const OperationalLogStore &m_log;
};

#endif
