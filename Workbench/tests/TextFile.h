#ifndef TEXTFILE_H
#define TEXTFILE_H

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A file with a given text, gone with the object.
class TextFile
{
public:
    explicit TextFile(const QByteArray &text, const QString &name = QStringLiteral("input.json"))
        : m_path(m_directory.filePath(name))
    {
        QFile file(m_path);
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
    }

    const QString &path() const { return m_path; }

private:
    QTemporaryDir m_directory;
    QString m_path;
};

#endif
