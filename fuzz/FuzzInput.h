#ifndef FUZZINPUT_H
#define FUZZINPUT_H

#include <QList>
#include <QString>
#include <QVariant>

#include <cstddef>
#include <cstdint>

/// Turns the bytes of one fuzzed input into values, from the first byte on. When the bytes run out,
/// every value is the first of its kind.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t *data, std::size_t size);

    bool isEmpty() const { return m_position == m_size; }

    /// A number from 0 to @p limit - 1.
    int below(int limit) { return next() % limit; }
    bool flag() { return (next() & 1) != 0; }
    qint64 number();
    double real();

    template <typename Type> Type oneOf(const QList<Type> &values)
    {
        return values.at(below(static_cast<int>(values.size())));
    }

    /// Up to @p longest bytes read as UTF-8, whatever they are.
    QString text(int longest = 24);
    /// Mostly one of a few ids that are easily mistaken for one another.
    QString id();
    /// A value of any type that a host may send; lists and maps go @p depth deep.
    QVariant value(int depth = 2);
    /// A map with some of these keys, mostly with values of a fitting type, and perhaps with
    /// others.
    QVariantMap map(const QStringList &keys);

    /// All bytes that are left.
    QByteArray rest();

private:
    std::uint8_t next() { return isEmpty() ? std::uint8_t{0} : m_data[m_position++]; }

    const std::uint8_t *m_data;
    std::size_t m_size;
    std::size_t m_position = 0;
};

#endif
