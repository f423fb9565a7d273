#include "ReplayRun.h"

#include "ErrorListText.h"
#include "ExitCode.h"
#include "FakeMonitor.h"
#include "FrameworkWrapperBase.h"
#include "InputFailure.h"
#include "JournalPlayer.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>
#include <QTimer>

namespace {

/// Sends commands as a plug-in does.
class AskingMonitor : public FakeMonitor
{
public:
    using FakeMonitor::FakeMonitor;

    void ask(void *context)
    {
        m_framework->SendCommand(m_hostHandle, pluginID(), QStringLiteral("getSnoozeList"), {},
                                 context, 0, {});
    }
};

JournalEntry entry(int line, const QByteArray &text)
{
    return {0, QJsonDocument::fromJson(text).object(), line};
}

} // namespace

class tst_ReplayRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void sameListIsASuccess();
    void differentListIsAFailure();
    void cutJournalIsASuccess();
    void journalThatContradictsItselfIsRefused();
    void openCommandsAreAnsweredAtTheEnd();
    void runMayLastUntilTheUserEndsIt();

private:
    int run(bool lasts = false);

    CallLog m_log;
    Journal m_journal;
    QString m_output;
};

// A connection, and a list with one error.
void tst_ReplayRun::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_log.take();
    m_journal = {};
    m_journal.fileName = QStringLiteral("j");
    m_journal.entries.push_back(entry(2, R"({"server": true})"));
    m_output.clear();
}

int tst_ReplayRun::run(bool lasts)
{
    FakeMonitor monitor(m_log);
    auto &errors = *static_cast<ErrorModel *>(monitor.getSystemErrorModel());
    errors.add(QStringLiteral("3_c"), 3, QStringLiteral("Lost"), QStringLiteral("Door"));
    JournalPlayer player(monitor, nullptr, m_journal, nullptr);
    QTextStream out(&m_output);
    return ReplayRun(player, m_journal, out, lasts).exec();
}

void tst_ReplayRun::sameListIsASuccess()
{
    ErrorModel recorded;
    recorded.add(QStringLiteral("3_c"), 3, QStringLiteral("Lost"), QStringLiteral("Door"));
    m_journal.errors = errorListText(recorded);
    QCOMPARE(run(), ExitCode::Success);
    QCOMPARE(m_output,
             m_journal.errors->constFirst()
                 + QStringLiteral("\n1 entries were replayed; the list is the recorded one.\n"));
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("initialised"), QStringLiteral("paired"),
                                        QStringLiteral("server connected")}));
}

void tst_ReplayRun::differentListIsAFailure()
{
    m_journal.errors = QStringList{QStringLiteral("uniqueIDRole=3_d")};
    QCOMPARE(run(), ExitCode::Failure);
    QVERIFY2(m_output.endsWith(
                 QStringLiteral("1 entries were replayed; the list differs from the recorded one:\n"
                                "uniqueIDRole=3_d\n")),
             qPrintable(m_output));
}

void tst_ReplayRun::cutJournalIsASuccess()
{
    QCOMPARE(run(), ExitCode::Success);
    QVERIFY2(m_output.endsWith(
                 QStringLiteral("The journal was cut off; its 1 whole entries were replayed.\n")),
             qPrintable(m_output));
}

void tst_ReplayRun::journalThatContradictsItselfIsRefused()
{
    m_journal.entries.push_back(entry(3, R"({"topology": {"path": [3], "change": {}}})"));
    QCOMPARE(inputFailure([this] { run(); }),
             QStringLiteral("j: line 3: expected a change that fits the topology"));
    QCOMPARE(m_output, QString());
}

void tst_ReplayRun::openCommandsAreAnsweredAtTheEnd()
{
    AskingMonitor monitor(m_log);
    JournalPlayer player(monitor, nullptr, m_journal, nullptr);
    monitor.ask(this);
    QTextStream out(&m_output);
    m_log.take();
    ReplayRun(player, m_journal, out).exec();
    QCOMPARE(m_log.take().size(), 2);
    QCOMPARE(monitor.lastContext, static_cast<void *>(this));
}

void tst_ReplayRun::runMayLastUntilTheUserEndsIt()
{
    bool isOver = false;
    QTimer::singleShot(50, this, [this, &isOver] {
        QVERIFY(m_output.contains(QStringLiteral("were replayed")));
        isOver = true;
        QCoreApplication::quit();
    });
    QCOMPARE(run(true), ExitCode::Success);
    QVERIFY(isOver);
}

QTEST_GUILESS_MAIN(tst_ReplayRun)
#include "tst_ReplayRun.moc"
