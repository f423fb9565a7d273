#include "InputFile.h"

#include <QDir>
#include <QFile>

namespace {

QString directoryTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + QStringLiteral("/fuzz-XXXXXX");
}

} // namespace

InputFile::InputFile(const QString &name)
    : m_name(name)
    , m_directory(directoryTemplate())
{ }

void InputFile::write(const QByteArray &content) const
{
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || file.write(content) != content.size())
        qFatal("%s cannot be written", qUtf8Printable(path()));
}
