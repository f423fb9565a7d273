#include "Preferences.h"

#include "TextFile.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class tst_Preferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void coloursAreDarkAtFirst();
    void choiceIsKeptForLater();
    void sizeIsUsualAtFirstAndKeptForLater();
    void withoutAFileNothingIsKept();
    void brokenFileCountsAsNone();
    void fileThatCannotBeWrittenIsNamed();
};

void tst_Preferences::coloursAreDarkAtFirst()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("settings.ini"));
    QCOMPARE(Preferences(file).isDark(), true);
    QVERIFY(!QFile::exists(file));
}

void tst_Preferences::choiceIsKeptForLater()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("new/folder/settings.ini"));
    Preferences(file).setDark(false);
    QCOMPARE(Preferences(file).isDark(), false);
    Preferences(file).setDark(true);
    QCOMPARE(Preferences(file).isDark(), true);
}

void tst_Preferences::sizeIsUsualAtFirstAndKeptForLater()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("settings.ini"));
    QCOMPARE(Preferences(file).zoom(), 1.0);
    Preferences(file).setZoom(1.75);
    Preferences(file).setDark(false);
    QCOMPARE(Preferences(file).zoom(), 1.75);
}

void tst_Preferences::withoutAFileNothingIsKept()
{
    Preferences preferences{QString()};
    preferences.setDark(false);
    preferences.setZoom(2);
    QCOMPARE(preferences.isDark(), true);
    QCOMPARE(preferences.zoom(), 1.0);
}

void tst_Preferences::brokenFileCountsAsNone()
{
    const TextFile file("no settings\n[dashboard\ndark=");
    QCOMPARE(Preferences(file.path()).isDark(), true);
    const TextFile strange("[dashboard]\nzoom=-2\n");
    QCOMPARE(Preferences(strange.path()).zoom(), 1.0);
}

void tst_Preferences::fileThatCannotBeWrittenIsNamed()
{
    const TextFile file("x");
    const QString path = file.path() + QStringLiteral("/settings.ini");
    QTest::ignoreMessage(QtWarningMsg, qPrintable(path + QStringLiteral(" cannot be written")));
    Preferences(path).setDark(false);
}

QTEST_GUILESS_MAIN(tst_Preferences)
#include "tst_Preferences.moc"
