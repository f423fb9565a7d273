#ifndef STATUSLINE_H
#define STATUSLINE_H

#include <QByteArray>

#include <functional>

class QString;

/// One line at the bottom of a terminal, which is written over and over and taken away in the end.
class StatusLine
{
public:
    using Write = std::function<void(const QByteArray &)>;

    /// The line on standard error. It shows nothing unless that is a terminal and the output goes
    /// elsewhere: lines of output show by themselves that the program is at work.
    static StatusLine onStandardError();

    /// @param write puts bytes on the terminal; without it nothing is shown
    explicit StatusLine(Write write)
        : m_write(std::move(write))
    { }

    void show(const QString &text) const;
    void clear() const;

private:
    Write m_write;
};

#endif
