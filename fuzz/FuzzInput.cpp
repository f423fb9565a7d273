#include "FuzzInput.h"

#include <QDateTime>
#include <QStringList>

#include <cstring>

using namespace Qt::Literals::StringLiterals;

FuzzInput::FuzzInput(const std::uint8_t *data, std::size_t size)
    : m_data(data)
    , m_size(size)
{ }

qint64 FuzzInput::number()
{
    // Small numbers matter most.
    if (!flag())
        return below(256) - 100;
    std::uint64_t bits = 0;
    for (int byte = 0; byte < 8; ++byte)
        bits = bits << 8 | next();
    return static_cast<qint64>(bits);
}

double FuzzInput::real()
{
    const qint64 bits = number();
    if (flag())
        return static_cast<double>(bits) / 10;
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

QString FuzzInput::text(int longest)
{
    QByteArray bytes;
    for (int length = below(longest + 1); length > 0 && !isEmpty(); --length)
        bytes.append(static_cast<char>(next()));
    return QString::fromUtf8(bytes);
}

QString FuzzInput::id()
{
    static const QStringList ids{u"st1"_s, u"st1/cam1"_s, u"st10"_s,   u"st1/sub"_s,
                                 u"a"_s,   u"a_b"_s,      u""_s,       u"/"_s,
                                 u"%1"_s,  u"st%3"_s,     u"st1/駅"_s, u"en0"_s};
    const int choice = below(static_cast<int>(ids.size()) + 2);
    return choice < ids.size() ? ids.at(choice) : text();
}

QVariant FuzzInput::value(int depth)
{
    switch (below(depth > 0 ? 14 : 10)) {
    case 0:
        return {};
    case 1:
        return static_cast<int>(number());
    case 2:
        return number();
    case 3:
        return static_cast<quint64>(number());
    case 4:
        return real();
    case 5:
        return flag();
    case 6:
        return id();
    case 7:
        return text().toUtf8();
    case 8:
        return QStringList{id(), id()};
    case 9:
        return QDateTime::fromMSecsSinceEpoch(number());
    case 10: {
        QVariantList list;
        for (int count = below(5); count > 0; --count)
            list.append(value(depth - 1));
        return list;
    }
    case 11:
        return QVariantHash{{id(), value(depth - 1)}};
    default:
        return map({});
    }
}

QVariantMap FuzzInput::map(const QStringList &keys)
{
    QVariantMap values;
    for (const QString &key : keys) {
        switch (below(6)) {
        case 0:
            break;
        case 1:
            values.insert(key, value(1));
            break;
        case 2:
            values.insert(key, below(8));
            break;
        case 3:
            values.insert(key, number());
            break;
        default:
            values.insert(key, id());
        }
    }
    if (below(8) == 7)
        values.insert(text(), value(1));
    return values;
}

QByteArray FuzzInput::rest()
{
    QByteArray bytes(reinterpret_cast<const char *>(m_data + m_position),
                     static_cast<qsizetype>(m_size - m_position));
    m_position = m_size;
    return bytes;
}
