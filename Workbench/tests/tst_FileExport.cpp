#include "FileExport.h"

#include "TextFile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace {

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

/// Lets no file of this process grow beyond a size, as a full disk would.
class SmallDisk
{
public:
    explicit SmallDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_usual);
        const rlimit small{bytes, m_usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }

    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_usual);
        std::signal(SIGXFSZ, m_handler);
    }

    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

private:
    rlimit m_usual{};
    void (*m_handler)(int);
};

} // namespace

class tst_FileExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void namesGoIntoTheFolder();
    void writesUtf8();
    void itsOwnFolderIsMade();
    void anyOtherFolderIsNot();
    void replacesAFile();
    void tellsWhatExists();
    void reasonIsGivenWhereNothingCanBeWritten();
    void fullDiskLeavesTheFileAsItWas();
};

void tst_FileExport::namesGoIntoTheFolder()
{
    const FileExport files(QStringLiteral("/home/user/Documents"));
    QCOMPARE(files.resolve(QStringLiteral("errors.csv")),
             QStringLiteral("/home/user/Documents/errors.csv"));
    QCOMPARE(files.resolve(QStringLiteral("../errors.csv")),
             QStringLiteral("/home/user/errors.csv"));
    QCOMPARE(files.resolve(QStringLiteral("/tmp/errors.csv")), QStringLiteral("/tmp/errors.csv"));
}

void tst_FileExport::writesUtf8()
{
    const QTemporaryDir directory;
    const FileExport files(directory.path());
    QCOMPARE(files.write(QStringLiteral("a.csv"), QStringLiteral("Süd\r\n")), QString());
    QCOMPARE(content(directory.filePath(QStringLiteral("a.csv"))), QByteArray("S\xc3\xbc"
                                                                              "d\r\n"));
}

void tst_FileExport::itsOwnFolderIsMade()
{
    const QTemporaryDir directory;
    const QString folder = directory.filePath(QStringLiteral("My documents"));
    QCOMPARE(FileExport(folder).write(QStringLiteral("a.csv"), QStringLiteral("x")), QString());
    QCOMPARE(content(folder + QStringLiteral("/a.csv")), QByteArray("x"));
}

void tst_FileExport::anyOtherFolderIsNot()
{
    const QTemporaryDir directory;
    const FileExport files(directory.path());
    QVERIFY(!files.write(QStringLiteral("deeper/a.csv"), QStringLiteral("x")).isEmpty());
    QVERIFY(QDir(directory.path()).isEmpty());
}

void tst_FileExport::replacesAFile()
{
    const TextFile file("what was there before");
    const FileExport files(QDir::tempPath());
    QCOMPARE(files.write(file.path(), QStringLiteral("new")), QString());
    QCOMPARE(content(file.path()), QByteArray("new"));
}

void tst_FileExport::tellsWhatExists()
{
    const TextFile file("x");
    const FileExport files(QDir::tempPath());
    QVERIFY(files.exists(file.path()));
    QVERIFY(!files.exists(file.path() + u'x'));
}

void tst_FileExport::reasonIsGivenWhereNothingCanBeWritten()
{
    const TextFile file("x");
    const FileExport files(QDir::tempPath());
    QCOMPARE(files.write(file.path() + QStringLiteral("/a.csv"), QString()),
             QStringLiteral("Not a directory"));
    QVERIFY(!files.write(QDir::tempPath(), QString()).isEmpty());
}

void tst_FileExport::fullDiskLeavesTheFileAsItWas()
{
    const QTemporaryDir directory;
    const FileExport files(directory.path());
    const QString path = directory.filePath(QStringLiteral("a.csv"));
    QCOMPARE(files.write(path, QStringLiteral("before")), QString());
    QString reason;
    {
        const SmallDisk disk(1000);
        reason = files.write(path, QString(5000, u'x'));
    }
    QCOMPARE(reason, QStringLiteral("File too large"));
    QCOMPARE(content(path), QByteArray("before"));
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files), QStringList{QStringLiteral("a.csv")});
}

QTEST_GUILESS_MAIN(tst_FileExport)
#include "tst_FileExport.moc"
