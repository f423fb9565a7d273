#ifndef FAKEFILES_H
#define FAKEFILES_H

#include <QMap>
#include <QObject>
#include <QString>

/// Keeps in memory what the dashboard writes.
class FakeFiles : public QObject
{
    Q_OBJECT
    /// Why nothing can be written; empty when it can.
    Q_PROPERTY(QString obstacle MEMBER obstacle)

public:
    using QObject::QObject;

    // What QML finds in the host's object.

    Q_INVOKABLE QString resolve(const QString &path) const;
    Q_INVOKABLE bool exists(const QString &path) const;
    Q_INVOKABLE QString write(const QString &path, const QString &text);

    // What tests do to it.

    Q_INVOKABLE QString content(const QString &path) const;

private:
    QMap<QString, QString> texts;
    QString obstacle;
};

#endif
