#include "ProcFile_Linux.h"

#include <QFile>

#include <charconv>

ProcFile::ProcFile(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        m_lines = file.readAll().split('\n');
}

std::optional<QByteArrayList> ProcFile::wordsAfter(QByteArrayView name) const
{
    for (const QByteArray &line : m_lines) {
        if (!line.startsWith(name))
            continue;
        QByteArrayList words = line.simplified().split(' ');
        if (words.takeFirst() == name)
            return words;
    }
    return std::nullopt;
}

std::optional<unsigned long long> ProcFile::number(QByteArrayView word)
{
    unsigned long long value = 0;
    const auto [end, error] = std::from_chars(word.begin(), word.end(), value);
    if (error != std::errc() || end != word.end())
        return std::nullopt;
    return value;
}
