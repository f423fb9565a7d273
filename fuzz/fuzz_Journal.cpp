#include "ErrorListText.h"
#include "FuzzTarget.h"
#include "InputError.h"
#include "InputFile.h"
#include "Invariants.h"
#include "JournalKeys.h"
#include "JournalPlayer.h"
#include "JournalReader.h"
#include "TestedPlugin.h"
#include "TopologyJournal.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <algorithm>
#include <memory>
#include <optional>

// Journals that were written by hand, or damaged. Lines that are no entries are left out of what is
// played, so that one wrong byte does not keep the rest from the player.

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray Header = R"({"journal":"plug-in inputs","plugin":"p","version":1})"
                          "\n";

std::optional<Journal> read(const QByteArray &text)
{
    static const InputFile file(u"plug-in.journal"_s);
    file.write(text);
    try {
        return readJournal(file.path());
    } catch (const InputError &error) {
        require(error.message().contains("plug-in.journal: line "_L1),
                "a message names file and line");
        return std::nullopt;
    }
}

QByteArray lineOf(const QJsonObject &entry)
{
    return QJsonDocument(entry).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray textOf(const Journal &journal)
{
    QByteArray text = Header;
    for (const JournalEntry &entry : journal.entries)
        text += lineOf(entry.object);
    return text;
}

/// Lines after the end do not count, nor does what follows the last line's end.
QByteArray entriesIn(const QByteArray &text)
{
    QByteArrayList lines = text.split('\n');
    lines.removeLast();
    QByteArray entries;
    for (const QByteArray &line : std::as_const(lines)) {
        const std::optional<Journal> journal = read(Header + line + '\n');
        if (journal && !journal->entries.empty())
            entries += line + '\n';
        if (journal && journal->errors)
            break;
    }
    return entries;
}

void requirePrefix(const QByteArray &text, const Journal &whole)
{
    const qsizetype headerSize = text.indexOf('\n') + 1;
    for (const qsizetype size : {headerSize, (headerSize + text.size()) / 2, text.size() - 1}) {
        if (size < headerSize)
            continue;
        const std::optional<Journal> cut = read(text.left(size));
        require(cut.has_value(), "a journal that was cut is one");
        require(cut->entries.size() <= whole.entries.size()
                    && std::equal(cut->entries.begin(), cut->entries.end(), whole.entries.begin(),
                                  [](const JournalEntry &left, const JournalEntry &right) {
                                      return left.object == right.object && left.line == right.line;
                                  }),
                "a journal that was cut is the beginning of the whole one");
    }
}

void requireRewritable(const Journal &journal)
{
    const QByteArray text = textOf(journal);
    const std::optional<Journal> again = read(text);
    require(again && textOf(*again) == text, "an accepted journal can be written and read again");
}

QByteArray contentOf(QStandardItemModel &model)
{
    QByteArray content;
    const TopologyRecorder recorder(
        model, [&content](const QJsonObject &change) { content += lineOf(change); });
    return content;
}

/// A second model is given what a recorder writes of the first.
void requireSameTopology(const Journal &journal)
{
    QStandardItemModel model;
    QStandardItemModel mirror;
    const TopologyRecorder recorder(model, [&mirror](const QJsonObject &change) {
        require(applyTopologyChange(mirror, change), "what is recorded can be replayed");
    });
    for (const JournalEntry &entry : journal.entries) {
        if (!entry.object.contains(JournalKeys::Topology))
            continue;
        const QByteArray before = contentOf(model);
        if (!applyTopologyChange(model, entry.object.value(JournalKeys::Topology).toObject()))
            require(contentOf(model) == before, "a refused change changes nothing");
        require(contentOf(mirror) == contentOf(model), "a replay has the recorded topology");
    }
}

/// The error list after the journal; nothing when it calls what the plug-in does not have.
std::optional<QStringList> play(const Journal &journal)
{
    auto plugin = std::make_unique<TestedPlugin>();
    std::unique_ptr<JournalPlayer> player;
    try {
        player = std::make_unique<JournalPlayer>(*plugin, nullptr, journal, nullptr);
    } catch (const InputError &) {
        return std::nullopt;
    }
    bool isOver = false;
    const auto end = [&isOver] { isOver = true; };
    QObject::connect(player.get(), &JournalPlayer::finished, player.get(), end);
    QObject::connect(player.get(), &JournalPlayer::failed, player.get(), end);
    player->start();
    while (!isOver)
        QCoreApplication::sendPostedEvents();
    player->finish();
    requireConsistency(*plugin);
    QStringList errors = errorListText(player->errors());
    plugin.reset();
    return errors;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (const std::optional<Journal> whole = read(text)) {
        requirePrefix(text, *whole);
        requireRewritable(*whole);
    }
    const std::optional<Journal> journal = read(Header + entriesIn(text));
    require(journal.has_value(), "entries make a journal");
    requireSameTopology(*journal);
    require(play(*journal) == play(*journal), "a journal is played alike each time");
    return 0;
}
