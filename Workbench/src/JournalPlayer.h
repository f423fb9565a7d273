#ifndef JOURNALPLAYER_H
#define JOURNALPLAYER_H

#include "JournalReader.h"
#include "ReplayFramework.h"

#include <QObject>

class Clock;
class PluginBase;
class QAbstractItemModel;
class QQmlContext;

/// Gives a plug-in the inputs of a journal, in their order and one in each turn of the event loop.
class JournalPlayer : public QObject
{
    Q_OBJECT

public:
    /// Initialises the plug-in. Throws InputError when the journal calls what it does not have, and
    /// HostError when it cannot be initialised.
    ///
    /// @param plugin  not initialised yet. It must not outlive the player, but outlive finish()
    /// @param context the QML context of the user interface, or null without one
    /// @param clock   gives the pace, and must outlive the player; null plays as fast as possible
    JournalPlayer(PluginBase &plugin, QQmlContext *context, const Journal &journal, Clock *clock);

    /// Plays the journal from its start.
    void start();

    /// Answers the commands that the journal does not, so that the plug-in can let go of them.
    void finish();

    /// How many entries the journal has, and how many of them were played.
    std::size_t entryCount() const { return m_journal.entries.size(); }
    std::size_t playedCount() const { return m_next; }

    /// The plug-in's error list.
    const QAbstractItemModel &errors() const { return *m_errors; }
    /// The topology as far as it was played.
    const QStandardItemModel &topology() const { return m_framework.peers().topology; }

Q_SIGNALS:
    /// The plug-in was told that the server is connected, or that it is not.
    void serverChanged(bool isConnected);
    /// The plug-in was told that the states of all nodes were fetched, or that this failed.
    void statesRetrieved(bool success);
    /// All entries were played.
    void finished();
    /// An entry of this line does not fit what came before.
    void failed(int line);

private:
    void expectKnownCalls() const;
    void scheduleNext();
    void playNext();
    bool play(const QJsonObject &entry);
    void call(const QJsonObject &entry);
    void respond(const QJsonObject &entry);
    void changeServer(bool isConnected);

    PluginBase &m_plugin;
    const Journal m_journal;
    Clock *const m_clock;
    ReplayFramework m_framework;
    QAbstractItemModel *m_errors = nullptr;
    std::size_t m_next = 0; // entry
    qint64 m_startMs = 0;
};

#endif
