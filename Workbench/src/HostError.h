#ifndef HOSTERROR_H
#define HOSTERROR_H

#include <QString>

/// What keeps the host from doing its work. Thrown at start-up and caught where the program starts.
class HostError
{
public:
    explicit HostError(QString message)
        : m_message(std::move(message))
    { }

    /// One sentence for the user.
    const QString &message() const { return m_message; }

private:
    QString m_message;
};

#endif
