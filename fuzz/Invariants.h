#ifndef INVARIANTS_H
#define INVARIANTS_H

#include <QObject>
#include <QSet>
#include <QString>

class TestedPlugin;

/// Ends the process with a message when something that always holds does not. A fuzzer takes that
/// for a fault.
void require(bool holds, const char *what);

/// Requires what holds of a plug-in whose lists nobody else changes: no key is listed twice, every
/// row is found by its key, its station and its device and by no other, the counts are those of the
/// rows, a view shows them all, the resource rows begin with their three base rows and have full
/// histories.
void requireConsistency(TestedPlugin &plugin);

/// Requires it in the course of an input too, so that a fault that a later step covers up is seen:
/// every few steps, since it takes several times as long as a step does.
class RegularConsistency
{
public:
    explicit RegularConsistency(TestedPlugin &plugin)
        : m_plugin(plugin)
    { }

    void afterStep();

private:
    TestedPlugin &m_plugin;
    int m_steps = 0;
};

/// Remembers the keys of all rows that leave the error list of a plug-in, not owned.
class LeftKeys
{
public:
    explicit LeftKeys(TestedPlugin &plugin);

    /// Requires that each of them finds a row again or nothing.
    void requireForgotten() const;

private:
    TestedPlugin &m_plugin;
    QSet<QString> m_keys;
    QObject m_receiver;
};

#endif
