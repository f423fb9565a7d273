#ifndef INPUTERROR_H
#define INPUTERROR_H

#include <QString>

/// What is wrong with something that the user gave: a file or an option. Thrown while it is read,
/// caught where the program starts.
class InputError
{
public:
    explicit InputError(QString message)
        : m_message(std::move(message))
    { }

    /// One sentence for the user, which names the place and what was expected there.
    const QString &message() const { return m_message; }

private:
    QString m_message;
};

#endif
