#include "JournalReader.h"

#include "InputError.h"
#include "JournalKeys.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>

#include <utility>

namespace {

// Longer than any recording, and far from where the sum of two times would overflow.
constexpr double LatestMs = 1e15;

class Reader
{
    Q_DECLARE_TR_FUNCTIONS(JournalReader)

public:
    explicit Reader(const QString &fileName) { m_journal.fileName = fileName; }

    Journal read();

private:
    [[noreturn]] void fail(const QString &expected) const;
    QJsonObject nextLine(const QByteArray &text);
    void readHeader(const QJsonObject &header);
    void readEntry(const QJsonObject &entry);

    Journal m_journal;
    int m_line = 0;
};

// The keys that an entry must have besides its time, with their types, by the entry's kind.
using Shape = QMap<QString, QJsonValue::Type>;

const QMap<QString, Shape> &shapes()
{
    using namespace JournalKeys;
    static const QMap<QString, Shape> shapes{
        {Call, {{Call, QJsonValue::String}, {Arguments, QJsonValue::Array}}},
        {Set, {{Set, QJsonValue::String}, {Value, QJsonValue::String}}},
        {Event, {{Event, QJsonValue::String}, {Source, QJsonValue::String}}},
        {Response,
         {{Response, QJsonValue::String},
          {Code, QJsonValue::String},
          {Target, QJsonValue::String}}},
        {Server, {{Server, QJsonValue::Bool}}},
        {Topology, {{Topology, QJsonValue::Object}}},
        {End, {{End, QJsonValue::Array}}},
    };
    return shapes;
}

bool hasShape(const QJsonObject &entry, const Shape &shape)
{
    for (auto key = shape.begin(); key != shape.end(); ++key) {
        if (entry.value(key.key()).type() != key.value())
            return false;
    }
    return true;
}

bool isEntry(const QJsonObject &entry)
{
    const double atMs = entry.value(JournalKeys::At).toDouble(-1);
    if (atMs < 0 || atMs > LatestMs)
        return false;
    for (auto kind = shapes().begin(); kind != shapes().end(); ++kind) {
        if (entry.contains(kind.key()))
            return hasShape(entry, kind.value());
    }
    return false;
}

Journal Reader::read()
{
    QFile file(m_journal.fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw InputError(tr("%1: cannot be read: %2").arg(m_journal.fileName, file.errorString()));
    readHeader(nextLine(file.readLine()));
    while (!file.atEnd() && !m_journal.errors) {
        const QByteArray text = file.readLine();
        if (!text.endsWith('\n'))
            break;
        readEntry(nextLine(text));
    }
    return std::exchange(m_journal, {});
}

void Reader::fail(const QString &expected) const
{
    throw InputError(
        tr("%1: line %2: expected %3").arg(m_journal.fileName, QString::number(m_line), expected));
}

// An empty object for what is none.
QJsonObject Reader::nextLine(const QByteArray &text)
{
    ++m_line;
    return text.endsWith('\n') ? QJsonDocument::fromJson(text).object() : QJsonObject();
}

void Reader::readHeader(const QJsonObject &header)
{
    using namespace JournalKeys;
    if (header.value(JournalKeys::Journal) != Kind || !header.value(JournalKeys::Plugin).isString())
        fail(tr("the header of a journal that --record has written"));
    if (header.value(Version) != CurrentVersion)
        fail(tr("version %1 of the journal").arg(CurrentVersion));
    m_journal.pluginId = header.value(JournalKeys::Plugin).toString();
    m_journal.thresholds = header.value(Environment).toObject();
}

void Reader::readEntry(const QJsonObject &entry)
{
    if (!isEntry(entry))
        fail(tr("an entry of a journal"));
    if (entry.contains(JournalKeys::End))
        m_journal.errors =
            QVariant(entry.value(JournalKeys::End).toArray().toVariantList()).toStringList();
    else
        m_journal.entries.push_back({entry.value(JournalKeys::At).toInteger(), entry, m_line});
}

} // namespace

Journal readJournal(const QString &fileName)
{
    return Reader(fileName).read();
}
