#ifndef JSONOBJECT_H
#define JSONOBJECT_H

#include <QCoreApplication>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// An object of a JSON file or message that is read strictly: it knows its place there, and
/// everything that is not as expected throws an InputError that names file, key and what was
/// expected.
///
/// Read all keys that may occur, then call expectNoMore().
class JsonObject
{
    Q_DECLARE_TR_FUNCTIONS(JsonObject)

public:
    /// Reads a file whose outermost value is an object.
    static JsonObject fromFile(const QString &fileName);

    /// Reads a text whose outermost value is an object.
    ///
    /// @param name stands in messages where a file's name would
    static JsonObject fromText(const QString &name, const QByteArray &text);

    bool has(const QString &key);

    /// A text that is not empty.
    QString text(const QString &key);

    bool requiredFlag(const QString &key);

    /// @param fallback what a missing key means
    bool flag(const QString &key, bool fallback);

    /// A number between the two bounds, which belong to the range.
    double number(const QString &key, double least, double greatest);
    double number(const QString &key, double least, double greatest, double fallback);

    /// A whole number between the two bounds, which belong to the range.
    int wholeNumber(const QString &key, int least, int greatest);

    JsonObject object(const QString &key);

    /// Whatever there is; undefined when the key is missing.
    QJsonValue value(const QString &key) { return take(key); }

    /// The objects of a list; none when the key is missing.
    std::vector<JsonObject> objects(const QString &key);
    /// The objects of a list that must be there, if only as an empty one.
    std::vector<JsonObject> requiredObjects(const QString &key);

    /// This object, with a number in place of each "#" in the texts of some keys.
    JsonObject numbered(const QStringList &keys, int number) const;

    /// Throws when the object has a key that has not been asked for.
    void expectNoMore() const;

    /// Throws: the value of a key is not as expected. Both phrases complete the sentence
    /// "expected ..., found ...".
    [[noreturn]] void fail(const QString &key, const QString &expected, const QString &found) const;

    /// Where a key stands in the file, for example "stations[1].cameras[0].id".
    QString placeOf(const QString &key) const;

private:
    JsonObject(QString fileName, QString place, QJsonObject object);

    [[noreturn]] void failType(const QString &key, const QString &expected) const;
    QJsonValue take(const QString &key);

    QString m_fileName;
    QString m_place; // empty for the outermost object
    QJsonObject m_object;
    QSet<QString> m_knownKeys; // asked for so far
};

#endif
