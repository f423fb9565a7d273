#include "BundledFile.h"

#include "TextFile.h"

#include <QTest>

class tst_BundledFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bundledFilesGoByTheirNames();
    void nothingHidesABundledFile();
    void pathsMeanFiles();
    void missingFilesKeepTheirNames();
};

void tst_BundledFile::bundledFilesGoByTheirNames()
{
    QCOMPARE(bundledOrFile(QStringLiteral("scenarios"), QStringLiteral("everything")),
             QStringLiteral(":/workbench/scenarios/everything.json"));
}

// A folder may be called "default" by chance.
void tst_BundledFile::nothingHidesABundledFile()
{
    const TextFile file("{}", QStringLiteral("everything"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(QFileInfo(file.path()).path());
    QCOMPARE(bundledOrFile(QStringLiteral("scenarios"), QStringLiteral("everything")),
             QStringLiteral(":/workbench/scenarios/everything.json"));
    QDir::setCurrent(before);
}

void tst_BundledFile::pathsMeanFiles()
{
    for (const char *const path : {"./everything", "../scenarios/everything", "/everything"})
        QCOMPARE(bundledOrFile(QStringLiteral("scenarios"), QString::fromLatin1(path)),
                 QString::fromLatin1(path));
}

void tst_BundledFile::missingFilesKeepTheirNames()
{
    QCOMPARE(bundledOrFile(QStringLiteral("sites"), QStringLiteral("everything")),
             QStringLiteral("everything"));
}

QTEST_GUILESS_MAIN(tst_BundledFile)
#include "tst_BundledFile.moc"
