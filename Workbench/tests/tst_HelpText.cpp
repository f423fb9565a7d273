#include "HelpText.h"

#include <QRegularExpression>
#include <QTest>

class tst_HelpText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void optionsStandUnderTheirTitle();
    void longDescriptionsAreWrapped();
    void longNamesHaveALineOfTheirOwn();
    void wordsThatAreTooLongStayWhole();
};

void tst_HelpText::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_HelpText::optionsStandUnderTheirTitle()
{
    const QCommandLineOption fast{QStringLiteral("fast"), QStringLiteral("Run.")};
    const QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Help.")};
    const QCommandLineOption site{QStringLiteral("site"), QStringLiteral("A site."),
                                  QStringLiteral("file")};
    QCOMPARE(helpText({QStringLiteral("Title:"), {fast, help, site}}),
             QStringLiteral("Title:\n"
                            "  --fast                  Run.\n"
                            "  -h, --help              Help.\n"
                            "  --site <file>           A site.\n"));
}

void tst_HelpText::longDescriptionsAreWrapped()
{
    const QString words = QStringLiteral("1234 6789 ").repeated(10).trimmed();
    const QCommandLineOption option{QStringLiteral("a"), words};
    const QStringList lines = helpText({QStringLiteral("T"), {option}}).split(u'\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(1).size() <= 79);
    QVERIFY(lines.at(2).startsWith(QString(26, u' ') + u'1'));
    QCOMPARE(lines.mid(1).join(u' ').simplified(), QStringLiteral("-a ") + words);
}

void tst_HelpText::longNamesHaveALineOfTheirOwn()
{
    const QCommandLineOption option{QStringLiteral("a-name-that-takes-room"), QStringLiteral("D."),
                                    QStringLiteral("value")};
    QCOMPARE(helpText({QStringLiteral("T"), {option}}),
             QStringLiteral("T\n  --a-name-that-takes-room <value>\n") + QString(26, u' ')
                 + QStringLiteral("D.\n"));
}

void tst_HelpText::wordsThatAreTooLongStayWhole()
{
    const QString word(100, u'x');
    const QCommandLineOption option{QStringLiteral("a"), word};
    QVERIFY(helpText({QStringLiteral("T"), {option}}).contains(word));
}

QTEST_GUILESS_MAIN(tst_HelpText)
#include "tst_HelpText.moc"
