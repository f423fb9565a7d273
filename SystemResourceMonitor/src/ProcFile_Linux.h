#ifndef PROCFILE_LINUX_H
#define PROCFILE_LINUX_H

#include <QByteArrayList>

#include <optional>

class QString;

/// The content of a file of the proc file system at one moment: lines of words, of which the first
/// names the line.
class ProcFile
{
public:
    /// Reads the whole file; a file that cannot be read has no lines.
    explicit ProcFile(const QString &path);

    /// The words that follow @p name on its line, if there is such a line.
    std::optional<QByteArrayList> wordsAfter(QByteArrayView name) const;

    /// The value of a word that is a decimal number without sign, if it is one.
    static std::optional<unsigned long long> number(QByteArrayView word);

private:
    QByteArrayList m_lines;
};

#endif
