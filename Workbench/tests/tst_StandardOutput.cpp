#include "StandardOutput.h"

#include "HostFailure.h"

#include <QFileInfo>
#include <QTemporaryFile>
#include <QTest>

#include <cstdio>
#include <memory>

namespace {

using FilePtr = std::unique_ptr<FILE, int (*)(FILE *)>;

// A file that takes nothing, as a full disk does; not every system has one.
const QString FullDevice = QStringLiteral("/dev/full");

FilePtr opened(const QString &name)
{
    return {std::fopen(qPrintable(name), "w"), &std::fclose};
}

} // namespace

class tst_StandardOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsPrintedIsWritten();
    void whatCannotBeWrittenIsAFailure();
    void nothingPrintedIsNoFailure();
};

void tst_StandardOutput::whatIsPrintedIsWritten()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const FilePtr handle = opened(file.fileName());
    StandardOutput output(handle.get());
    output.stream() << "text";
    output.expectWritten();
    QCOMPARE(file.readAll(), QByteArray("text"));
}

void tst_StandardOutput::whatCannotBeWrittenIsAFailure()
{
    if (!QFileInfo::exists(FullDevice))
        QSKIP("This system has no /dev/full.");
    const FilePtr full = opened(FullDevice);
    StandardOutput output(full.get());
    output.stream() << "text" << Qt::endl;
    QCOMPARE(hostFailure([&output] { output.expectWritten(); }),
             QStringLiteral("The output cannot be written."));
}

void tst_StandardOutput::nothingPrintedIsNoFailure()
{
    if (!QFileInfo::exists(FullDevice))
        QSKIP("This system has no /dev/full.");
    const FilePtr full = opened(FullDevice);
    StandardOutput output(full.get());
    QCOMPARE(hostFailure([&output] { output.expectWritten(); }), QString());
}

QTEST_GUILESS_MAIN(tst_StandardOutput)
#include "tst_StandardOutput.moc"
