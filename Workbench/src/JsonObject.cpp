#include "JsonObject.h"

#include "InputError.h"
#include "JsonKeys.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <cmath>
#include <utility>

namespace {

bool isWhole(double number)
{
    return std::floor(number) == number;
}

// So that a number that is one too great does not read like the bound.
QString inFull(double number)
{
    constexpr double MostInFull = 1e15;
    return isWhole(number) && std::abs(number) <= MostInFull
               ? QString::number(number, 'f', 0)
               : QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString describe(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Undefined:
        return JsonObject::tr("nothing");
    case QJsonValue::Null:
        return JsonObject::tr("null");
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return JsonObject::tr("the number %1").arg(inFull(value.toDouble()));
    case QJsonValue::String:
        return value.toString().isEmpty() ? JsonObject::tr("an empty text")
                                          : JsonObject::tr("\"%1\"").arg(value.toString());
    case QJsonValue::Array:
        return JsonObject::tr("a list");
    case QJsonValue::Object:
        return JsonObject::tr("an object");
    }
    return {};
}

qsizetype lineOf(const QByteArray &text, int offset)
{
    return text.left(offset).count('\n') + 1;
}

} // namespace

JsonObject::JsonObject(QString fileName, QString place, QJsonObject object)
    : m_fileName(std::move(fileName))
    , m_place(std::move(place))
    , m_object(std::move(object))
{ }

JsonObject JsonObject::fromFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw InputError(tr("%1: cannot be read: %2").arg(fileName, file.errorString()));
    return fromText(fileName, file.readAll());
}

JsonObject JsonObject::fromText(const QString &name, const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        throw InputError(
            tr("%1: line %2: expected valid JSON, found: %3")
                .arg(name, QString::number(lineOf(text, error.offset)), error.errorString()));
    if (!document.isObject())
        throw InputError(tr("%1: line 1: expected an object, found a list").arg(name));
    if (const QString place = repeatedKey(text); !place.isEmpty())
        throw InputError(tr("%1: %2: expected the key once, found it twice").arg(name, place));
    return {name, {}, document.object()};
}

bool JsonObject::has(const QString &key)
{
    return !take(key).isUndefined();
}

QString JsonObject::text(const QString &key)
{
    QString text = take(key).toString();
    if (text.isEmpty())
        failType(key, tr("a text"));
    return text;
}

bool JsonObject::requiredFlag(const QString &key)
{
    const QJsonValue value = take(key);
    if (!value.isBool())
        failType(key, tr("true or false"));
    return value.toBool();
}

bool JsonObject::flag(const QString &key, bool fallback)
{
    return has(key) ? requiredFlag(key) : fallback;
}

double JsonObject::number(const QString &key, double least, double greatest)
{
    const QJsonValue value = take(key);
    const double number = value.toDouble();
    if (!value.isDouble() || number < least || number > greatest)
        failType(key, tr("a number from %1 to %2").arg(inFull(least), inFull(greatest)));
    return number;
}

double JsonObject::number(const QString &key, double least, double greatest, double fallback)
{
    return has(key) ? number(key, least, greatest) : fallback;
}

int JsonObject::wholeNumber(const QString &key, int least, int greatest)
{
    const QJsonValue value = take(key);
    const double number = value.toDouble();
    if (!value.isDouble() || number < least || number > greatest || !isWhole(number))
        failType(key, tr("a whole number from %1 to %2").arg(least).arg(greatest));
    return static_cast<int>(number);
}

JsonObject JsonObject::object(const QString &key)
{
    const QJsonValue value = take(key);
    if (!value.isObject())
        failType(key, tr("an object"));
    return {m_fileName, placeOf(key), value.toObject()};
}

std::vector<JsonObject> JsonObject::objects(const QString &key)
{
    return has(key) ? requiredObjects(key) : std::vector<JsonObject>();
}

std::vector<JsonObject> JsonObject::requiredObjects(const QString &key)
{
    const QJsonValue value = take(key);
    if (!value.isArray())
        failType(key, tr("a list of objects"));
    const QJsonArray list = value.toArray();
    std::vector<JsonObject> objects;
    for (qsizetype i = 0; i < list.size(); ++i) {
        const QString entry = key + u'[' + QString::number(i) + u']';
        if (!list.at(i).isObject())
            fail(entry, tr("an object"), describe(list.at(i)));
        objects.push_back(JsonObject(m_fileName, placeOf(entry), list.at(i).toObject()));
    }
    return objects;
}

JsonObject JsonObject::numbered(const QStringList &keys, int number) const
{
    JsonObject copy = *this;
    for (const QString &key : keys) {
        const QJsonValue value = m_object.value(key);
        if (value.isString())
            copy.m_object.insert(key, value.toString().replace(u'#', QString::number(number)));
    }
    return copy;
}

void JsonObject::expectNoMore() const
{
    const QStringList keys = m_object.keys();
    for (const QString &key : keys) {
        if (m_knownKeys.contains(key))
            continue;
        QStringList known = m_knownKeys.values();
        known.sort();
        fail(key, tr("one of the keys %1").arg(known.join(QStringLiteral(", "))),
             tr("an unknown key"));
    }
}

void JsonObject::fail(const QString &key, const QString &expected, const QString &found) const
{
    throw InputError(
        tr("%1: %2: expected %3, found %4").arg(m_fileName, placeOf(key), expected, found));
}

QString JsonObject::placeOf(const QString &key) const
{
    return m_place.isEmpty() ? key : m_place + u'.' + key;
}

void JsonObject::failType(const QString &key, const QString &expected) const
{
    fail(key, expected, describe(m_object.value(key)));
}

QJsonValue JsonObject::take(const QString &key)
{
    m_knownKeys.insert(key);
    return m_object.value(key);
}
