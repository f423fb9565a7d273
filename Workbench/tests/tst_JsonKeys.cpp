#include "JsonKeys.h"

#include <QTest>

class tst_JsonKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheFirstKeyThatIsRepeated_data();
    void namesTheFirstKeyThatIsRepeated();
};

void tst_JsonKeys::namesTheFirstKeyThatIsRepeated_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("place");
    const auto row = [](const char *name, const char *json, const char *place) {
        QTest::newRow(name) << QByteArray(json) << QString::fromLatin1(place);
    };
    row("none", R"({"a": 1, "b": 2})", "");
    row("empty", "{}", "");
    row("at the top", R"({"a": 1, "b": 2, "a": 3})", "a");
    row("with the same value", R"({"a":1,"a":1})", "a");
    row("deep down", R"({"a": [{}, {"b": {"c": 1, "d": [1, 2], "c": 2}}]})", "a[1].b.c");
    row("after inner objects", R"({"a": {"x": [{"a": 1}]}, "a": 2})", "a");
    row("in different objects", R"({"a": {"a": 1}, "b": [{"a": 1}, {"a": 1}]})", "");
    row("in case of another letter", R"({"a": 1, "A": 2})", "");
    row("written with an escape", R"({"key": 1, "k\u0065y": 2})", "key");
    row("quoted quote", R"({"a\"": 1, "a": 2, "a\"": 3})", "a\"");
    row("in a text", R"({"a": "{\"b\": 1, \"b\": 2}", "c": ",]}"})", "");
    row("texts of a list", R"({"a": ["x", "x", "x"]})", "");
    row("backslash before the quote", R"({"a": "\\", "b": 1, "a": 2})", "a");
    row("first of two", R"({"a": 1, "b": 1, "b": 2, "a": 2})", "b");
}

void tst_JsonKeys::namesTheFirstKeyThatIsRepeated()
{
    QFETCH(QByteArray, json);
    QTEST(repeatedKey(json), "place");
}

QTEST_APPLESS_MAIN(tst_JsonKeys)
#include "tst_JsonKeys.moc"
