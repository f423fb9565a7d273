#ifndef NETWORKCOUNTERS_H
#define NETWORKCOUNTERS_H

#include <QString>

#include <optional>
#include <vector>

/// What a network interface has carried since it was set up.
struct InterfaceCounters
{
    QString name;
    quint64 receivedBytes = 0;
    quint64 sentBytes = 0;
    std::optional<double> speed; ///< Mbit/s in each direction; nothing when it does not tell
};

/// Reads the counters of this machine's network interfaces.
class NetworkCounters
{
public:
    /// @param root where the system's information files are found, for example a recorded tree
    explicit NetworkCounters(QString root = QStringLiteral("/"));

    /// The interfaces that are up, in the system's order, without the loopback interface. Entries
    /// that cannot be understood are left out.
    std::vector<InterfaceCounters> read() const;

private:
    QString m_root;
};

#endif
