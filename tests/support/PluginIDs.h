#ifndef PLUGINIDS_H
#define PLUGINIDS_H

#include <QString>

/// Ids under which the host files the plug-ins.
namespace PluginID {
inline const QString SystemMonitor = QStringLiteral("{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}");
inline const QString Topology = QStringLiteral("1AA33B3D0AA047C9A202F1181284D2CD");
inline const QString RecordingManagement = QStringLiteral("8F33495A224D49ABB8F9E875984A1443");
inline const QString OperationalLog = QStringLiteral("D8C607070A81469B8CA4FF2E107DB6AB");
} // namespace PluginID

#endif
