#ifndef JOURNALKEYS_H
#define JOURNALKEYS_H

#include <QString>

/// The keys of a journal's lines, which its writer and its reader share.
namespace JournalKeys {

// The header, the first line.
inline const QString Journal = QStringLiteral("journal");
inline const QString Version = QStringLiteral("version");
inline const QString Plugin = QStringLiteral("plugin");
inline const QString Workbench = QStringLiteral("workbench");
inline const QString Recorded = QStringLiteral("recorded");
inline const QString Environment = QStringLiteral("environment");
/// What the header has under Journal.
inline const QString Kind = QStringLiteral("plug-in inputs");
constexpr int CurrentVersion = 1;

// Every other line has a time and one of the kinds.
inline const QString At = QStringLiteral("at");
inline const QString Call = QStringLiteral("call");
inline const QString Set = QStringLiteral("set");
inline const QString Event = QStringLiteral("event");
inline const QString Response = QStringLiteral("response");
inline const QString Server = QStringLiteral("server");
inline const QString Topology = QStringLiteral("topology");
inline const QString End = QStringLiteral("end");

// What goes with a kind.
inline const QString Arguments = QStringLiteral("arguments");
inline const QString Value = QStringLiteral("value");
inline const QString Data = QStringLiteral("data");
inline const QString Source = QStringLiteral("source");
inline const QString Code = QStringLiteral("code");
inline const QString Target = QStringLiteral("target");

} // namespace JournalKeys

#endif
