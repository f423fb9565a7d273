#include "ReplayRun.h"

#include "ErrorListText.h"
#include "ExitCode.h"
#include "InputError.h"
#include "JournalPlayer.h"
#include "RunProgress.h"

#include <QTextStream>

#include <optional>

ReplayRun::ReplayRun(JournalPlayer &player, const Journal &journal, QTextStream &out, bool lasts)
    : m_player(player)
    , m_journal(journal)
    , m_out(out)
    , m_lasts(lasts)
{ }

int ReplayRun::exec()
{
    QObject::connect(&m_player, &JournalPlayer::finished, &m_player, [this] {
        m_code = writeOutcome();
        if (!m_lasts)
            QCoreApplication::quit();
    });
    QObject::connect(&m_player, &JournalPlayer::failed, &m_player, [this](int line) {
        m_failedLine = line;
        QCoreApplication::quit();
    });
    std::optional<RunProgress> progress;
    if (!m_lasts)
        progress.emplace(StatusLine::onStandardError(), m_player);
    m_player.start();
    QCoreApplication::exec();
    progress.reset();
    m_player.finish();
    if (m_failedLine > 0)
        throw InputError(tr("%1: line %2: expected a change that fits the topology")
                             .arg(m_journal.fileName, QString::number(m_failedLine)));
    return m_code;
}

int ReplayRun::writeOutcome()
{
    const QStringList errors = errorListText(m_player.errors());
    for (const QString &error : errors)
        m_out << error << '\n';
    const QString count = QString::number(m_journal.entries.size());
    const bool isSame = m_journal.errors == errors;
    if (!m_journal.errors)
        m_out << tr("The journal was cut off; its %1 whole entries were replayed.").arg(count);
    else if (isSame)
        m_out << tr("%1 entries were replayed; the list is the recorded one.").arg(count);
    else
        m_out << tr("%1 entries were replayed; the list differs from the recorded one:").arg(count)
              << '\n'
              << m_journal.errors->join(u'\n');
    m_out << Qt::endl;
    return !m_journal.errors || isSame ? ExitCode::Success : ExitCode::Failure;
}
