#include "AccessToken.h"

#include "InputFailure.h"
#include "TextFile.h"

#include <QTest>

class tst_AccessToken : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutATokenEveryoneMayCome();
    void onlyTheWholeTokenIsRight_data();
    void onlyTheWholeTokenIsRight();
    void blanksAroundTheTokenDoNotCount();
    void wrongFilesAreRefused_data();
    void wrongFilesAreRefused();
    void missingFileIsNamed();
};

void tst_AccessToken::withoutATokenEveryoneMayCome()
{
    const AccessToken token;
    QVERIFY(!token.isSet());
    QVERIFY(token.admits(QString()));
    QVERIFY(token.admits(QStringLiteral("anything")));
}

void tst_AccessToken::onlyTheWholeTokenIsRight_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<bool>("isRight");
    QTest::newRow("right") << QStringLiteral("0123456789abcdéf") << true;
    QTest::newRow("none") << QString() << false;
    QTest::newRow("beginning") << QStringLiteral("0123456789abcd") << false;
    QTest::newRow("more") << QStringLiteral("0123456789abcdéf0") << false;
    QTest::newRow("first character") << QStringLiteral("1123456789abcdéf") << false;
    QTest::newRow("last character") << QStringLiteral("0123456789abcdéF") << false;
}

void tst_AccessToken::onlyTheWholeTokenIsRight()
{
    QFETCH(QString, given);
    const TextFile file("0123456789abcdéf");
    QTEST(AccessToken::fromFile(file.path()).admits(given), "isRight");
}

void tst_AccessToken::blanksAroundTheTokenDoNotCount()
{
    const TextFile file("  0123456789abcdef \r\n");
    const AccessToken token = AccessToken::fromFile(file.path());
    QVERIFY(token.isSet());
    QCOMPARE(token.text(), QStringLiteral("0123456789abcdef"));
}

void tst_AccessToken::wrongFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const QString length =
        QStringLiteral("FILE: expected a token of 16 to 1024 characters, found ");
    QTest::newRow("empty") << QByteArray() << length + u'0';
    QTest::newRow("short") << QByteArray("0123456789abcde\n") << length + QStringLiteral("15");
    QTest::newRow("long") << QByteArray(1025, 'x') << length + QStringLiteral("1025");
    QTest::newRow("two lines") << QByteArray("0123456789\nabcdef0123456789")
                               << QStringLiteral(
                                      "FILE: expected a token in one line without blanks");
}

void tst_AccessToken::wrongFilesAreRefused()
{
    QFETCH(QByteArray, text);
    const TextFile file(text);
    QTEST(inputFailure(file.path(), [&file] { AccessToken::fromFile(file.path()); }), "message");
}

void tst_AccessToken::missingFileIsNamed()
{
    QCOMPARE(inputFailure([] { AccessToken::fromFile(QStringLiteral("/nowhere/token")); }),
             QStringLiteral("/nowhere/token: cannot be read: No such file or directory"));
}

QTEST_GUILESS_MAIN(tst_AccessToken)
#include "tst_AccessToken.moc"
