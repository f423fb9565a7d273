#ifndef PROCFILE_LINUX_H
#define PROCFILE_LINUX_H

#include <QByteArray>
#include <QVarLengthArray>

#include <optional>
#include <string_view>

class QString;

/// The content of a file of the proc file system at one moment: lines of words, of which the first
/// names the line.
class ProcFile
{
public:
    /// Words of the file, which must outlive them.
    using Words = QVarLengthArray<std::string_view, 16>;

    /// Reads the whole file; a file that cannot be read has no lines.
    explicit ProcFile(const QString &path);
    ~ProcFile() = default;

    ProcFile(const ProcFile &) = delete;
    ProcFile &operator=(const ProcFile &) = delete;

    /// The words that follow @p name on its line, if there is such a line.
    std::optional<Words> wordsAfter(std::string_view name) const;

    /// The value of a word that is a decimal number without sign, if it is one.
    static std::optional<unsigned long long> number(std::string_view word);

private:
    void read(int descriptor);
    void splitLines();

    QByteArray m_content;
    QVarLengthArray<std::string_view, 128> m_lines;
};

#endif
