#include "NetworkCounters.h"

#include <QDir>
#include <QFile>

#include <utility>

namespace {

// Fields of a line of /proc/net/dev, after the interface's name.
constexpr qsizetype ReceivedBytesField = 0;
constexpr qsizetype SentBytesField = 8;

constexpr const char *LoopbackType = "772";

QByteArray readAll(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray attribute(const QDir &root, const QString &interface, const QString &name)
{
    return readAll(root.filePath(QStringLiteral("sys/class/net/%1/%2").arg(interface, name)))
        .trimmed();
}

// Tunnels and the like do not know whether they are up, and work.
bool isInUse(const QDir &root, const QString &interface)
{
    const QByteArray state = attribute(root, interface, QStringLiteral("operstate"));
    const bool isUp = state == "up" || state == "unknown";
    return isUp && attribute(root, interface, QStringLiteral("type")) != LoopbackType;
}

// Virtual and wireless interfaces have no speed: the file says -1 or cannot be read.
std::optional<double> speedOf(const QDir &root, const QString &interface)
{
    bool isNumber = false;
    const int speed = attribute(root, interface, QStringLiteral("speed")).toInt(&isNumber);
    if (!isNumber || speed <= 0)
        return std::nullopt;
    return speed;
}

std::optional<InterfaceCounters> parse(const QByteArray &line)
{
    const qsizetype colon = line.indexOf(':');
    if (colon < 0)
        return std::nullopt;
    const QByteArrayList fields = line.mid(colon + 1).simplified().split(' ');
    if (fields.size() <= SentBytesField)
        return std::nullopt;
    bool isReceived = false;
    bool isSent = false;
    InterfaceCounters counters;
    counters.name = QString::fromUtf8(line.left(colon).trimmed());
    counters.receivedBytes = fields.at(ReceivedBytesField).toULongLong(&isReceived);
    counters.sentBytes = fields.at(SentBytesField).toULongLong(&isSent);
    if (!isReceived || !isSent)
        return std::nullopt;
    return counters;
}

} // namespace

NetworkCounters::NetworkCounters(QString root)
    : m_root(std::move(root))
{ }

std::vector<InterfaceCounters> NetworkCounters::read() const
{
    const QDir root(m_root);
    std::vector<InterfaceCounters> all;
    const QByteArrayList lines = readAll(root.filePath(QStringLiteral("proc/net/dev"))).split('\n');
    for (const QByteArray &line : lines) {
        std::optional<InterfaceCounters> counters = parse(line);
        if (!counters || !isInUse(root, counters->name))
            continue;
        counters->speed = speedOf(root, counters->name);
        all.push_back(*counters);
    }
    return all;
}
