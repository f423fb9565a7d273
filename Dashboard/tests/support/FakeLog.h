#ifndef FAKELOG_H
#define FAKELOG_H

#include <QObject>
#include <QStringList>
#include <QVariantList>

/// An operational log in memory.
class FakeLog : public QObject
{
    Q_OBJECT
    /// How often the dashboard has read it.
    Q_PROPERTY(int reads MEMBER reads)

public:
    using QObject::QObject;

    // What QML finds in the host's object.

    Q_INVOKABLE QVariantList newest(int limit, const QString &text);

    // What tests do to it.

    Q_INVOKABLE void add(double time, const QString &name, const QStringList &parameters);
    /// Adds entries a second apart, named "Entry 0" and so on.
    Q_INVOKABLE void addMany(int count, double oldest);

Q_SIGNALS:
    void changed();

private:
    QVariantList entries; // newest first
    int reads = 0;
};

#endif
