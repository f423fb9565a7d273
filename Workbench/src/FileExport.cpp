#include "FileExport.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

namespace {

// A full disk may take a part; the write after that says why it takes no more.
bool writeAll(QIODevice &device, const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 written = device.write(bytes.constData() + done, bytes.size() - done);
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

} // namespace

FileExport::FileExport(QString folder, QObject *parent)
    : QObject(parent)
    , m_folder(std::move(folder))
{ }

QString FileExport::usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString FileExport::resolve(const QString &path) const
{
    return QDir::cleanPath(QDir(m_folder).absoluteFilePath(path));
}

bool FileExport::exists(const QString &path) const
{
    return QFileInfo::exists(resolve(path));
}

QString FileExport::write(const QString &path, const QString &text) const
{
    const QFileInfo target(resolve(path));
    // Any other folder that does not exist is more likely a slip of the pen.
    if (target.absolutePath() == QDir(m_folder).absolutePath())
        QDir().mkpath(m_folder);
    QSaveFile file(target.absoluteFilePath());
    // With a buffer, commit() would not notice that the buffer's end did not fit on the disk.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, text.toUtf8())
        && file.commit())
        return {};
    return file.errorString();
}
