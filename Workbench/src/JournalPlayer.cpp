#include "JournalPlayer.h"

#include "Clock.h"
#include "HostError.h"
#include "InputError.h"
#include "JournalKeys.h"
#include "NamedCall.h"
#include "PluginBase.h"
#include "ServerNames.h"
#include "TopologyJournal.h"

#include <QAbstractItemModel>
#include <QJsonArray>

namespace {

// What starts the plug-in's own timer; the walk that follows stands in the journal.
const QString WalkTimer = QStringLiteral("initNodeStatusErrorTimer");

// Methods of every QObject, such as the one that deletes it, are for its owner; and an object that
// a call returns would be nobody's.
bool isInput(const QMetaMethod &method)
{
    return method.isValid() && method.methodIndex() >= QObject::staticMetaObject.methodCount()
           && !method.returnMetaType().flags().testFlag(QMetaType::PointerToQObject);
}

QVariant dataOf(const QJsonObject &entry)
{
    const QJsonValue data = entry.value(JournalKeys::Data);
    return data.isNull() ? QVariant() : data.toVariant();
}

} // namespace

JournalPlayer::JournalPlayer(PluginBase &plugin, QQmlContext *context, const Journal &journal,
                             Clock *clock)
    : m_plugin(plugin)
    , m_journal(journal)
    , m_clock(clock)
{
    expectKnownCalls();
    if (!plugin.InitialPluginBase(context, &m_framework, &m_framework))
        throw HostError(tr("The plug-in failed to initialise."));
    plugin.LoadPairPluginDone();
    m_errors = qobject_cast<QAbstractItemModel *>(
        callByName(plugin, "getSystemErrorModel", {}).value<QObject *>());
    if (!m_errors)
        throw HostError(tr("The plug-in has no error list."));
}

void JournalPlayer::start()
{
    m_startMs = m_clock ? m_clock->elapsedMs() : 0;
    scheduleNext();
}

void JournalPlayer::finish()
{
    for (const ReplayFramework::Command &command : m_framework.takeUnanswered())
        m_plugin.CommandProcessor(command.name, {}, command.context,
                                  ServerNames::FrameworkInternalError, {}, false, command.target);
}

void JournalPlayer::expectKnownCalls() const
{
    for (const JournalEntry &entry : m_journal.entries) {
        const QString name = entry.object.value(JournalKeys::Call).toString();
        const qsizetype count = entry.object.value(JournalKeys::Arguments).toArray().size();
        if (!name.isEmpty() && !isInput(methodByName(m_plugin, name.toLatin1(), count)))
            throw InputError(tr("%1: line %2: expected a call that the plug-in has, found \"%3\" "
                                "with %4 arguments")
                                 .arg(m_journal.fileName, QString::number(entry.line), name,
                                      QString::number(count)));
    }
}

void JournalPlayer::scheduleNext()
{
    if (m_clock && m_next < m_journal.entries.size())
        m_clock->callAfter(m_startMs + m_journal.entries[m_next].atMs - m_clock->elapsedMs(), this,
                           [this] { playNext(); });
    else
        QMetaObject::invokeMethod(this, &JournalPlayer::playNext, Qt::QueuedConnection);
}

void JournalPlayer::playNext()
{
    if (m_next == m_journal.entries.size()) {
        Q_EMIT finished();
        return;
    }
    const JournalEntry &entry = m_journal.entries[m_next++];
    if (play(entry.object))
        scheduleNext();
    else
        Q_EMIT failed(entry.line);
}

bool JournalPlayer::play(const QJsonObject &entry)
{
    using namespace JournalKeys;
    if (entry.contains(Topology))
        return applyTopologyChange(m_framework.peers().topology, entry.value(Topology).toObject());
    if (entry.contains(Call))
        call(entry);
    else if (entry.contains(Set))
        m_plugin.setProperty(entry.value(Set).toString().toLatin1().constData(),
                             entry.value(Value).toVariant());
    else if (entry.contains(Event))
        m_plugin.EventProcessor(entry.value(Event).toString(), 0, 0, 0, dataOf(entry),
                                entry.value(Source).toString());
    else if (entry.contains(Response))
        respond(entry);
    else
        changeServer(entry.value(Server).toBool());
    return true;
}

void JournalPlayer::changeServer(bool isConnected)
{
    if (isConnected)
        m_plugin.PluginServerConnected();
    else
        m_plugin.PluginServerDisconnected();
    Q_EMIT serverChanged(isConnected);
}

void JournalPlayer::call(const QJsonObject &entry)
{
    const QString name = entry.value(JournalKeys::Call).toString();
    const QJsonArray arguments = entry.value(JournalKeys::Arguments).toArray();
    if (name == WalkTimer)
        Q_EMIT statesRetrieved(arguments.first().toBool());
    else
        callByName(m_plugin, name.toLatin1(), arguments.toVariantList());
}

void JournalPlayer::respond(const QJsonObject &entry)
{
    const QString command = entry.value(JournalKeys::Response).toString();
    const QString target = entry.value(JournalKeys::Target).toString();
    m_plugin.CommandProcessor(command, dataOf(entry), m_framework.takeContext(command, target),
                              entry.value(JournalKeys::Code).toString(), {}, false, target);
}
