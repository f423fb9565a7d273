#ifndef USAGEKEYS_H
#define USAGEKEYS_H

#include <QHash>
#include <QString>

/// Tells by one look that no usage error of a station can be listed. A report has a value for each
/// resource and interface, and nearly all are calm and of a calm station: without this each value
/// costs the search for a key that is not there.
///
/// Keys are counted by the first part of their id, up to an underscore, since a key does not tell
/// where its id ends.
class UsageKeys
{
public:
    /// Counts a key. Keys of other errors than usage errors are passed over.
    void add(const QString &key);
    /// Takes back what add() did.
    void remove(const QString &key);
    void clear();

    /// False when no key counted here is that of a usage error of this station.
    bool mayHold(const QString &stationID) const;

private:
    QHash<QString, int> m_counts; ///< by the first part of the id
    mutable QString m_lastStationID;
    mutable bool m_lastAnswer = false;
};

#endif
