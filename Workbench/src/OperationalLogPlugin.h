#ifndef OPERATIONALLOGPLUGIN_H
#define OPERATIONALLOGPLUGIN_H

#include <QObject>
#include <QVariantList>

class Clock;
class OperationalLogStore;

/// The plug-in through which others write to the operational log.
class OperationalLogPlugin : public QObject
{
    Q_OBJECT

public:
    /// @param clock gives the time of an entry; both must outlive the plug-in
    OperationalLogPlugin(OperationalLogStore &log, const Clock &clock, QObject *parent = nullptr);

    /// Writes an entry. Called by name.
    ///
    /// @param name       what was done
    /// @param parameters one map for each parameter, which stands under the key "param"
    /// @return whether it was written
    Q_INVOKABLE bool addOperationalLog(const QString &name, const QVariantList &parameters);

Q_SIGNALS:
    void entryAdded(const QString &name, const QVariantList &parameters);

private:
    OperationalLogStore &m_log;
    const Clock &m_clock;
};

#endif
