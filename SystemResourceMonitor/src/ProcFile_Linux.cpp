#include "ProcFile_Linux.h"

#include <QFile>

#include <algorithm>
#include <charconv>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

// More than a kernel tells of some dozens of processors, so that one buffer does.
constexpr qsizetype BufferSize = 16384;

// A closure, which searches inline; a function they would call for every letter.
constexpr auto isBlank = [](char letter) {
    return letter == ' ' || (letter >= '\t' && letter <= '\r');
};

ProcFile::Words split(std::string_view line)
{
    ProcFile::Words words;
    const char *const end = line.data() + line.size();
    for (const char *word = std::find_if_not(line.data(), end, isBlank); word != end;) {
        const char *const wordEnd = std::find_if(word, end, isBlank);
        words.append(std::string_view(word, static_cast<std::size_t>(wordEnd - word)));
        word = std::find_if_not(wordEnd, end, isBlank);
    }
    return words;
}

} // namespace

// Straight from the kernel: QFile asks for type and size of a file first, which costs more here
// than all the rest.
ProcFile::ProcFile(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    read(descriptor);
    ::close(descriptor);
    splitLines();
}

void ProcFile::read(int descriptor)
{
    m_content = QByteArray(BufferSize, Qt::Uninitialized);
    for (qsizetype length = 0;;) {
        const ssize_t count = ::read(descriptor, m_content.data() + length,
                                     static_cast<std::size_t>(m_content.size() - length));
        if (count < 0 && errno == EINTR)
            continue;
        length += qMax<qsizetype>(count, 0);
        // The kernel writes such a file in one piece, so a read that leaves room was the last one.
        if (length < m_content.size()) {
            m_content.truncate(length);
            return;
        }
        m_content.resize(2 * length);
    }
}

void ProcFile::splitLines()
{
    const std::string_view content(m_content.constData(),
                                   static_cast<std::size_t>(m_content.size()));
    for (std::size_t begin = 0; begin < content.size();) {
        const auto end = std::min(content.find('\n', begin), content.size());
        m_lines.append(content.substr(begin, end - begin));
        begin = end + 1;
    }
}

std::optional<ProcFile::Words> ProcFile::wordsAfter(std::string_view name) const
{
    for (const std::string_view line : m_lines) {
        // Nearly every line differs in the first letter, which is cheaper to compare than a name.
        if (line.empty() || line.front() != name.front() || !line.starts_with(name))
            continue;
        const std::string_view rest = line.substr(name.size());
        if (rest.empty() || isBlank(rest.front()))
            return split(rest);
    }
    return std::nullopt;
}

std::optional<unsigned long long> ProcFile::number(std::string_view word)
{
    unsigned long long value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size())
        return std::nullopt;
    return value;
}
