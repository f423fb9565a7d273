#include "ProcFile_Linux.h"

#include <QTemporaryFile>
#include <QTest>

namespace {

QByteArrayList copied(const ProcFile::Words &words)
{
    QByteArrayList copies;
    for (const std::string_view word : words)
        copies.append(QByteArray::fromStdString(std::string(word)));
    return copies;
}

} // namespace

class tst_ProcFile_Linux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void lineIsFoundByItsFirstWord_data();
    void lineIsFoundByItsFirstWord();
    void unreadableFileHasNoLines();
    void numberIsDecimalWithoutSign_data();
    void numberIsDecimalWithoutSign();
};

void tst_ProcFile_Linux::lineIsFoundByItsFirstWord_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QByteArrayList>("words");
    const QByteArrayList none;
    QTest::newRow("first line") << QByteArray("cpu 1 2\nx 3\n") << true << QByteArrayList{"1", "2"};
    QTest::newRow("last line") << QByteArray("x 3\ncpu 1 2\n") << true << QByteArrayList{"1", "2"};
    QTest::newRow("no final newline") << QByteArray("cpu 1") << true << QByteArrayList{"1"};
    QTest::newRow("several blanks")
        << QByteArray("cpu  1\t 2 ") << true << QByteArrayList{"1", "2"};
    QTest::newRow("other control character")
        << QByteArray("cpu 1\x01 2") << true << QByteArrayList{"1\x01", "2"};
    QTest::newRow("first of two") << QByteArray("cpu 1\ncpu 2\n") << true << QByteArrayList{"1"};
    QTest::newRow("many words") << "cpu" + QByteArray(" 7").repeated(100) << true
                                << QByteArrayList(100, "7");
    QTest::newRow("behind more than fits the buffer")
        << QByteArray("x 3\n").repeated(30'000) + "cpu 1 2\n"
        << true << QByteArrayList{"1", "2"};
    QTest::newRow("on a line longer than the buffer")
        << "x " + QByteArray(100'000, '3') + "\ncpu 1 2" << true << QByteArrayList{"1", "2"};
    QTest::newRow("no words") << QByteArray("cpu\n") << true << none;
    QTest::newRow("longer name") << QByteArray("cpu0 1\n") << false << none;
    QTest::newRow("shorter name") << QByteArray("cp 1\n") << false << none;
    QTest::newRow("name inside the line") << QByteArray("x cpu 1\n") << false << none;
    QTest::newRow("empty file") << QByteArray() << false << none;
    QTest::newRow("blank lines") << QByteArray("\n\n") << false << none;
}

void tst_ProcFile_Linux::lineIsFoundByItsFirstWord()
{
    QFETCH(const QByteArray, content);
    QFETCH(const bool, found);
    QFETCH(const QByteArrayList, words);
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(content);
    file.close();

    const ProcFile procFile(file.fileName());
    const auto actual = procFile.wordsAfter("cpu");
    QCOMPARE(actual.has_value(), found);
    QCOMPARE(copied(actual.value_or(ProcFile::Words())), words);
}

void tst_ProcFile_Linux::unreadableFileHasNoLines()
{
    QVERIFY(!ProcFile(QStringLiteral("/nonexistent/stat")).wordsAfter("cpu"));
    QVERIFY(!ProcFile(QStringLiteral("/")).wordsAfter("cpu"));
}

void tst_ProcFile_Linux::numberIsDecimalWithoutSign_data()
{
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<quint64>("value");
    QTest::newRow("zero") << QByteArray("0") << true << quint64(0);
    QTest::newRow("leading zeros") << QByteArray("0042") << true << quint64(42);
    QTest::newRow("largest") << QByteArray("18446744073709551615") << true << ~quint64(0);
    QTest::newRow("too large") << QByteArray("18446744073709551616") << false << quint64(0);
    QTest::newRow("negative") << QByteArray("-1") << false << quint64(0);
    QTest::newRow("plus sign") << QByteArray("+1") << false << quint64(0);
    QTest::newRow("fraction") << QByteArray("1.5") << false << quint64(0);
    QTest::newRow("hexadecimal") << QByteArray("0x1f") << false << quint64(0);
    QTest::newRow("trailing letters") << QByteArray("12kB") << false << quint64(0);
    QTest::newRow("letters") << QByteArray("twelve") << false << quint64(0);
    QTest::newRow("empty") << QByteArray("") << false << quint64(0);
}

void tst_ProcFile_Linux::numberIsDecimalWithoutSign()
{
    QFETCH(const QByteArray, word);
    QFETCH(const bool, isNumber);
    const auto number = ProcFile::number(word.toStdString());
    QCOMPARE(number.has_value(), isNumber);
    QTEST(quint64(number.value_or(0)), "value");
}

QTEST_APPLESS_MAIN(tst_ProcFile_Linux)
#include "tst_ProcFile_Linux.moc"
