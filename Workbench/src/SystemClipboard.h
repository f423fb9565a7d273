#ifndef SYSTEMCLIPBOARD_H
#define SYSTEMCLIPBOARD_H

#include <QObject>

/// The way of the dashboard's texts into the system's clipboard, however long they are.
class SystemClipboard : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE void put(const QString &text);
};

#endif
