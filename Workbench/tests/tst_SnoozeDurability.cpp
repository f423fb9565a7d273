#include "VirtualClock.h"

#include <QMap>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

constexpr int RoundCount = 200;
constexpr quint32 Seed = 7;

using Ends = QMap<QString, qint64>; // of snoozes, by node id

// What one worker after another has said: the snoozes that must be there, and one change that may
// have happened or not, because the worker was killed between asking and confirming.
class Record
{
public:
    qint64 nowSeconds() const { return m_nowSeconds; }
    int confirmedCount() const { return m_confirmedCount; }
    int foundCount() const { return m_foundCount; }

    // Takes all that a worker has said. Returns how what it found contradicts what was said before;
    // empty when it does not, or when the worker did not come to look.
    QString take(const QStringList &lines)
    {
        QString difference;
        for (const QString &line : lines) {
            const QStringList words = line.split(u' ');
            if (words.constFirst() == QStringLiteral("found")) {
                difference = compare(words.mid(1));
            } else if (words.constFirst() == QStringLiteral("done")) {
                apply(m_open, m_ends);
                m_open.clear();
                ++m_confirmedCount;
            } else {
                m_open = words;
            }
        }
        return difference;
    }

private:
    QString compare(const QStringList &words)
    {
        Ends found;
        for (qsizetype i = 0; i + 1 < words.size(); i += 2)
            found.insert(words.at(i), words.at(i + 1).toLongLong());
        Ends after = m_ends;
        apply(m_open, after);
        QString difference = isBetween(found, m_ends, after)
                                 ? QString()
                                 : QStringLiteral("found %1, confirmed %2, under way '%3'")
                                       .arg(printed(found), printed(m_ends), m_open.join(u' '));
        m_ends = found;
        m_open.clear();
        m_foundCount += static_cast<int>(found.size());
        return difference;
    }

    void apply(const QStringList &change, Ends &ends)
    {
        const QString verb = change.value(0);
        if (verb == QStringLiteral("set")) {
            ends.insert(change.at(1), change.at(2).toLongLong());
        } else if (verb == QStringLiteral("remove")) {
            ends.remove(change.at(1));
        } else if (verb == QStringLiteral("pass")) {
            m_nowSeconds = change.at(1).toLongLong();
            ends.removeIf(
                [this](const Ends::iterator &entry) { return entry.value() <= m_nowSeconds; });
        }
    }

    // Snoozes that end in the same pass of time are forgotten one second after another.
    static bool isBetween(const Ends &found, const Ends &before, const Ends &after)
    {
        Ends rest = found;
        rest.removeIf([&](const Ends::iterator &entry) {
            return before.value(entry.key()) == entry.value() && !after.contains(entry.key());
        });
        return found == before || rest == after;
    }

    static QString printed(const Ends &ends)
    {
        QStringList parts;
        for (auto entry = ends.cbegin(); entry != ends.cend(); ++entry)
            parts.append(QStringLiteral("%1:%2").arg(entry.key()).arg(entry.value()));
        return parts.join(u' ');
    }

    Ends m_ends;        // of the confirmed snoozes
    QStringList m_open; // the change that was asked for and not confirmed
    qint64 m_nowSeconds = VirtualClock::StartMs / 1000;
    int m_confirmedCount = 0;
    int m_foundCount = 0;
};

} // namespace

/// A server that is killed while it works.
class tst_SnoozeDurability : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedServerLosesNothingThatItConfirmed();

private:
    static QStringList runAndKill(const QStringList &arguments, int lineCount, int pauseUs);
};

// Kills the worker some moments after it has said a number of lines, and returns all its lines.
QStringList tst_SnoozeDurability::runAndKill(const QStringList &arguments, int lineCount,
                                             int pauseUs)
{
    QProcess worker;
    worker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    worker.start(QStringLiteral(SNOOZE_WORKER), arguments);
    QByteArray output;
    while (output.count('\n') < lineCount && worker.waitForReadyRead(10'000))
        output += worker.readAllStandardOutput();
    QThread::usleep(static_cast<unsigned long>(pauseUs));
    worker.kill();
    worker.waitForFinished();
    output += worker.readAllStandardOutput();
    return QString::fromLatin1(output).split(u'\n', Qt::SkipEmptyParts);
}

void tst_SnoozeDurability::killedServerLosesNothingThatItConfirmed()
{
    const QTemporaryDir directory;
    QRandomGenerator random(Seed);
    Record record;
    for (int round = 0; round < RoundCount; ++round) {
        const QStringList arguments{directory.filePath(QStringLiteral("snoozes.sqlite")),
                                    QString::number(record.nowSeconds()),
                                    QString::number(random.generate())};
        const QString difference =
            record.take(runAndKill(arguments, random.bounded(0, 12), random.bounded(0, 3000)));
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("round %1: %2").arg(round).arg(difference)));
    }
    QVERIFY(record.confirmedCount() > RoundCount);
    QVERIFY(record.foundCount() > RoundCount);
}

QTEST_GUILESS_MAIN(tst_SnoozeDurability)
#include "tst_SnoozeDurability.moc"
