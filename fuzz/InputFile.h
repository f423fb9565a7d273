#ifndef INPUTFILE_H
#define INPUTFILE_H

#include <QString>
#include <QTemporaryDir>

/// A file for code that reads files: in a directory of its own, in memory where the system can.
class InputFile
{
public:
    explicit InputFile(const QString &name);

    /// Replaces the file's content.
    void write(const QByteArray &content) const;

    QString directory() const { return m_directory.path(); }
    QString path() const { return m_directory.filePath(m_name); }

private:
    QString m_name;
    QTemporaryDir m_directory;
};

#endif
