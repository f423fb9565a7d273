#ifndef JOURNALREADER_H
#define JOURNALREADER_H

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// An input of the plug-in with its place in the file.
struct JournalEntry
{
    qint64 atMs = 0; ///< from the start of the recording
    QJsonObject object;
    int line = 0;
};

/// What a plug-in was given in a run of the Workbench.
struct Journal
{
    QString fileName;
    QString pluginId;
    QJsonObject thresholds; ///< of the environment
    std::vector<JournalEntry> entries;
    /// The error list at the end, as errorListText() gives it; missing when the journal was cut
    /// off.
    std::optional<QStringList> errors;
};

/// Reads a journal.
///
/// A last line without an end is what a crash or a full disk leaves of an entry, and is left out.
/// Throws InputError when the file cannot be read, is no journal, or has another line that is no
/// entry.
Journal readJournal(const QString &fileName);

#endif
