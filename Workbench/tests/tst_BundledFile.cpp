#include "BundledFile.h"

#include "TextFile.h"

#include <QTest>

class tst_BundledFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bundledFilesGoByTheirNames();
    void filesComeFirst();
    void missingFilesKeepTheirNames();
};

void tst_BundledFile::bundledFilesGoByTheirNames()
{
    QCOMPARE(bundledOrFile(QStringLiteral("scenarios"), QStringLiteral("everything")),
             QStringLiteral(":/workbench/scenarios/everything.json"));
}

void tst_BundledFile::filesComeFirst()
{
    const TextFile file("{}", QStringLiteral("everything"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(QFileInfo(file.path()).path());
    QCOMPARE(bundledOrFile(QStringLiteral("scenarios"), QStringLiteral("everything")),
             QStringLiteral("everything"));
    QDir::setCurrent(before);
}

void tst_BundledFile::missingFilesKeepTheirNames()
{
    QCOMPARE(bundledOrFile(QStringLiteral("sites"), QStringLiteral("everything")),
             QStringLiteral("everything"));
}

QTEST_GUILESS_MAIN(tst_BundledFile)
#include "tst_BundledFile.moc"
