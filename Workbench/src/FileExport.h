#ifndef FILEEXPORT_H
#define FILEEXPORT_H

#include <QObject>
#include <QString>

/// Writes files for the dashboard, which is QML and cannot do so itself. Used on one thread.
class FileExport : public QObject
{
    Q_OBJECT

public:
    /// @param folder where names without a path go; it is made when the first file is written there
    explicit FileExport(QString folder, QObject *parent = nullptr);

    /// The folder that suits what a user exports.
    static QString usualFolder();

    /// The absolute path that a name or path stands for.
    Q_INVOKABLE QString resolve(const QString &path) const;

    /// Whether there is a file, or anything else, at a path.
    Q_INVOKABLE bool exists(const QString &path) const;

    /// Writes a text as UTF-8, in place of an earlier file. The file is written whole or stays as
    /// it was.
    ///
    /// @return empty when that went well, otherwise the reason in words
    Q_INVOKABLE QString write(const QString &path, const QString &text) const;

private:
    const QString m_folder;
};

#endif
