#include "Recording.h"

#include "FullDisk.h"
#include "HostFailure.h"
#include "InputFailure.h"
#include "JournalReader.h"
#include "PluginHost.h"
#include "TextFile.h"
#include "VirtualClock.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <memory>

class tst_Recording : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_host.reset(); }

    void recorderStandsBeforeThePlugin();
    void journalIsOfTheHostsPlugin();
    void finishedJournalHasAnEnd();
    void journalWithoutAnEndIsCutOff();
    void hostKeepsItsPluginWhenTheFileCannotBeStarted();
    void fullDiskIsToldInTheEnd();

private:
    QString newFile() const { return m_directory->filePath(QStringLiteral("new.journal")); }

    VirtualClock m_clock;
    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<PluginHost> m_host;
};

void tst_Recording::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_directory = std::make_unique<QTemporaryDir>();
    m_host =
        std::make_unique<PluginHost>(QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"));
}

void tst_Recording::recorderStandsBeforeThePlugin()
{
    const PluginBase *const plugin = m_host->plugin();
    Recording recording(newFile(), *m_host, m_clock);
    QVERIFY(m_host->plugin() != plugin);
    m_host->plugin()->PluginServerConnected();
    QCOMPARE(readJournal(newFile()).entries.size(), std::size_t(1));
}

void tst_Recording::journalIsOfTheHostsPlugin()
{
    const Recording recording(newFile(), *m_host, m_clock);
    QCOMPARE(readJournal(newFile()).pluginId, m_host->pluginId());
}

void tst_Recording::finishedJournalHasAnEnd()
{
    Recording recording(newFile(), *m_host, m_clock);
    m_host->plugin()->InitialPluginBase(nullptr, nullptr, nullptr);
    recording.finish();
    m_host->plugin()->PluginServerConnected();
    const Journal journal = readJournal(newFile());
    QCOMPARE(journal.errors, std::optional(QStringList()));
    QVERIFY(journal.entries.empty());
}

void tst_Recording::journalWithoutAnEndIsCutOff()
{
    {
        const Recording recording(newFile(), *m_host, m_clock);
        m_host->plugin()->PluginServerConnected();
    }
    QVERIFY(!readJournal(newFile()).errors);
}

void tst_Recording::hostKeepsItsPluginWhenTheFileCannotBeStarted()
{
    const PluginBase *const plugin = m_host->plugin();
    const TextFile other("precious");
    QVERIFY(!inputFailure([this, &other] { Recording(other.path(), *m_host, m_clock); }).isEmpty());
    QCOMPARE(m_host->plugin(), plugin);
}

void tst_Recording::fullDiskIsToldInTheEnd()
{
    Recording recording(newFile(), *m_host, m_clock);
    {
        const FullDisk disk(static_cast<rlim_t>(QFileInfo(newFile()).size()));
        m_host->plugin()->PluginServerConnected();
    }
    QCOMPARE(hostFailure([&recording] { recording.finish(); }),
             newFile() + QStringLiteral(": cannot be written: File too large"));
}

QTEST_GUILESS_MAIN(tst_Recording)
#include "tst_Recording.moc"
