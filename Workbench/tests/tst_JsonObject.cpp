#include "JsonObject.h"

#include "InputFailure.h"
#include "TextFile.h"

#include <QTest>

#include <array>
#include <functional>

namespace {

QString failureOf(const QByteArray &text, const std::function<void(JsonObject &)> &read)
{
    const TextFile file(text);
    return inputFailure(file.path(), [&file, &read] {
        JsonObject object = JsonObject::fromFile(file.path());
        read(object);
    });
}

} // namespace

class tst_JsonObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsValuesOfEveryKind();
    void missingKeysTakeTheirDefaults();
    void placesNameTheWayThroughTheFile();
    void unreadableFileIsNamed();
    void malformedFileNamesTheLine_data();
    void malformedFileNamesTheLine();
    void wrongValuesNameKeyExpectationAndFinding_data();
    void wrongValuesNameKeyExpectationAndFinding();
    void numbersAreBounded_data();
    void numbersAreBounded();
    void numbersAreNamedInFull_data();
    void numbersAreNamedInFull();
    void wrongEntryOfAListIsNamed();
    void keyThatIsWrittenTwiceIsNamed();
    void unknownKeyNamesTheKnownOnes();
    void keysThatWereOnlyLookedForAreKnown();
};

void tst_JsonObject::readsValuesOfEveryKind()
{
    const TextFile file(R"({"text": "a", "flag": false, "number": 1.5, "whole": 3,
                            "object": {"x": "y"}, "list": [{"z": "1"}, {"z": "2"}]})");
    JsonObject object = JsonObject::fromFile(file.path());
    QCOMPARE(object.text(QStringLiteral("text")), QStringLiteral("a"));
    QCOMPARE(object.flag(QStringLiteral("flag"), true), false);
    QCOMPARE(object.number(QStringLiteral("number"), 0, 2), 1.5);
    QCOMPARE(object.wholeNumber(QStringLiteral("whole"), 3, 3), 3);
    QCOMPARE(object.object(QStringLiteral("object")).text(QStringLiteral("x")),
             QStringLiteral("y"));
    std::vector<JsonObject> list = object.requiredObjects(QStringLiteral("list"));
    QCOMPARE(list.size(), std::size_t(2));
    QCOMPARE(list.at(1).text(QStringLiteral("z")), QStringLiteral("2"));
    object.expectNoMore();
}

void tst_JsonObject::missingKeysTakeTheirDefaults()
{
    const TextFile file("{}");
    JsonObject object = JsonObject::fromFile(file.path());
    QVERIFY(!object.has(QStringLiteral("text")));
    QCOMPARE(object.flag(QStringLiteral("flag"), true), true);
    QCOMPARE(object.flag(QStringLiteral("flag"), false), false);
    QCOMPARE(object.number(QStringLiteral("number"), 0, 2, 1.25), 1.25);
    QVERIFY(object.objects(QStringLiteral("list")).empty());
}

void tst_JsonObject::placesNameTheWayThroughTheFile()
{
    const TextFile file(R"({"a": [{}, {"b": [{}]}], "c": {}})");
    JsonObject object = JsonObject::fromFile(file.path());
    QCOMPARE(object.placeOf(QStringLiteral("x")), QStringLiteral("x"));
    std::vector<JsonObject> list = object.objects(QStringLiteral("a"));
    QCOMPARE(list.at(0).placeOf(QStringLiteral("x")), QStringLiteral("a[0].x"));
    std::vector<JsonObject> inner = list.at(1).objects(QStringLiteral("b"));
    QCOMPARE(inner.at(0).placeOf(QStringLiteral("x")), QStringLiteral("a[1].b[0].x"));
    QCOMPARE(object.object(QStringLiteral("c")).placeOf(QStringLiteral("x")),
             QStringLiteral("c.x"));
}

void tst_JsonObject::unreadableFileIsNamed()
{
    const QString path = QStringLiteral("/nowhere/at/all.json");
    QCOMPARE(inputFailure(path, [&path] { JsonObject::fromFile(path); }),
             QStringLiteral("FILE: cannot be read: No such file or directory"));
}

void tst_JsonObject::malformedFileNamesTheLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing colon") << QByteArray("{\n  \"a\" 1\n}")
                                   << QStringLiteral("FILE: line 2: expected valid JSON, found: "
                                                     "missing name separator");
    QTest::newRow("ends early") << QByteArray("{\n\"a\": {\n\n")
                                << QStringLiteral("FILE: line 4: expected valid JSON, found: "
                                                  "unterminated object");
    QTest::newRow("empty") << QByteArray()
                           << QStringLiteral("FILE: line 1: expected valid JSON, found: "
                                             "illegal value");
    QTest::newRow("a list") << QByteArray("[]")
                            << QStringLiteral("FILE: line 1: expected an object, found a list");
}

void tst_JsonObject::malformedFileNamesTheLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QCOMPARE(failureOf(text, [](JsonObject &) {}), message);
}

void tst_JsonObject::wrongValuesNameKeyExpectationAndFinding_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("flag");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("list");

    const auto finding = [](const char *found) {
        const QString tail = QStringLiteral(", found ") + QString::fromLatin1(found);
        return std::array{QStringLiteral("FILE: k: expected a text") + tail,
                          QStringLiteral("FILE: k: expected true or false") + tail,
                          QStringLiteral("FILE: k: expected a number from 0 to 9") + tail,
                          QStringLiteral("FILE: k: expected an object") + tail,
                          QStringLiteral("FILE: k: expected a list of objects") + tail};
    };
    const auto row = [](const char *value, const std::array<QString, 5> &messages) {
        QTest::newRow(value) << QByteArray(value) << messages[0] << messages[1] << messages[2]
                             << messages[3] << messages[4];
    };
    const QString right;
    auto messages = finding("the number 7");
    messages[2] = right;
    row("7", messages);
    messages = finding("\"seven\"");
    messages[0] = right;
    row("\"seven\"", messages);
    row("\"\"", finding("an empty text"));
    messages = finding("true");
    messages[1] = right;
    row("true", messages);
    row("null", finding("null"));
    messages = finding("a list");
    messages[4] = right;
    row("[]", messages);
    messages = finding("an object");
    messages[3] = right;
    row("{}", messages);
}

void tst_JsonObject::wrongValuesNameKeyExpectationAndFinding()
{
    QFETCH(QByteArray, value);
    const QByteArray text = "{\"k\": " + value + "}";
    const QString key = QStringLiteral("k");
    QTEST(failureOf(text, [&key](JsonObject &object) { object.text(key); }), "text");
    QTEST(failureOf(text, [&key](JsonObject &object) { object.flag(key, true); }), "flag");
    QTEST(failureOf(text, [&key](JsonObject &object) { object.number(key, 0, 9); }), "number");
    QTEST(failureOf(text, [&key](JsonObject &object) { object.object(key); }), "object");
    QTEST(failureOf(text, [&key](JsonObject &object) { object.objects(key); }), "list");
}

void tst_JsonObject::numbersAreBounded_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("least") << QByteArray("1") << true << true;
    QTest::newRow("greatest") << QByteArray("9") << true << true;
    QTest::newRow("whole with a point") << QByteArray("4.0") << true << true;
    QTest::newRow("fraction") << QByteArray("4.5") << true << false;
    QTest::newRow("too small") << QByteArray("0.99") << false << false;
    QTest::newRow("too great") << QByteArray("9.01") << false << false;
    QTest::newRow("huge") << QByteArray("1e300") << false << false;
    QTest::newRow("negative") << QByteArray("-1") << false << false;
}

void tst_JsonObject::numbersAreBounded()
{
    QFETCH(QByteArray, value);
    const QByteArray text = "{\"k\": " + value + "}";
    const QString key = QStringLiteral("k");
    QTEST(failureOf(text, [&key](JsonObject &object) { object.number(key, 1, 9); }).isEmpty(),
          "isNumber");
    QTEST(failureOf(text, [&key](JsonObject &object) { object.wholeNumber(key, 1, 9); }).isEmpty(),
          "isWhole");
}

void tst_JsonObject::numbersAreNamedInFull_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("found");
    QTest::newRow("one too great") << QByteArray("1000001") << QStringLiteral("1000001");
    QTest::newRow("negative") << QByteArray("-12345678") << QStringLiteral("-12345678");
    QTest::newRow("fraction") << QByteArray("1000000.25") << QStringLiteral("1000000.25");
    QTest::newRow("huge") << QByteArray("1e300") << QStringLiteral("1e+300");
}

void tst_JsonObject::numbersAreNamedInFull()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, found);
    const auto read = [](JsonObject &object) {
        object.number(QStringLiteral("k"), 0.001, 1'000'000);
    };
    QCOMPARE(failureOf("{\"k\": " + value + '}', read),
             QStringLiteral("FILE: k: expected a number from 0.001 to 1000000, found the number %1")
                 .arg(found));
}

void tst_JsonObject::wrongEntryOfAListIsNamed()
{
    QCOMPARE(failureOf(R"({"k": [{}, 3]})",
                       [](JsonObject &object) { object.objects(QStringLiteral("k")); }),
             QStringLiteral("FILE: k[1]: expected an object, found the number 3"));
    QCOMPARE(
        failureOf("{}", [](JsonObject &object) { object.requiredObjects(QStringLiteral("k")); }),
        QStringLiteral("FILE: k: expected a list of objects, found nothing"));
}

void tst_JsonObject::keyThatIsWrittenTwiceIsNamed()
{
    QCOMPARE(failureOf(R"({"list": [{"a": 1, "b": 2, "a": 1}]})", [](JsonObject &) {}),
             QStringLiteral("FILE: list[0].a: expected the key once, found it twice"));
}

void tst_JsonObject::unknownKeyNamesTheKnownOnes()
{
    QCOMPARE(failureOf(R"({"b": "1", "a": "2", "c": 3})",
                       [](JsonObject &object) {
                           object.text(QStringLiteral("b"));
                           object.text(QStringLiteral("a"));
                           object.expectNoMore();
                       }),
             QStringLiteral("FILE: c: expected one of the keys a, b, found an unknown key"));
}

void tst_JsonObject::keysThatWereOnlyLookedForAreKnown()
{
    QCOMPARE(failureOf(R"({"a": 1})",
                       [](JsonObject &object) {
                           QVERIFY(object.has(QStringLiteral("a")));
                           object.expectNoMore();
                       }),
             QString());
}

QTEST_GUILESS_MAIN(tst_JsonObject)
#include "tst_JsonObject.moc"
