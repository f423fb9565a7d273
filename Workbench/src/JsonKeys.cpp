#include "JsonKeys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <vector>

namespace {

// An object or a list around the present position.
struct Level
{
    bool isObject = false;
    bool expectsKey = false;
    QSet<QString> keys;
    QString key; // of the present value
    int index = 0;
};

QString placeOf(const std::vector<Level> &levels)
{
    QString place;
    for (const Level &level : levels) {
        if (!level.isObject)
            place += u'[' + QString::number(level.index) + u']';
        else
            place += (place.isEmpty() ? QString() : QStringLiteral(".")) + level.key;
    }
    return place;
}

// The position after a text that starts with the quote at a position.
qsizetype endOfText(const QByteArray &json, qsizetype start)
{
    qsizetype end = start + 1;
    while (end < json.size() && json.at(end) != '"')
        end += json.at(end) == '\\' ? 2 : 1;
    return end + 1;
}

// The same key can be written in several ways, with and without escapes.
QString decoded(const QByteArray &text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().at(0).toString();
}

// Returns whether the key is new.
bool enterKey(Level &object, const QString &key)
{
    object.expectsKey = false;
    object.key = key;
    const qsizetype before = object.keys.size();
    object.keys.insert(key);
    return object.keys.size() > before;
}

void nextEntry(Level &level)
{
    level.expectsKey = level.isObject;
    ++level.index;
}

} // namespace

// As the text is valid, quotes, brackets and commas tell all that is needed.
QString repeatedKey(const QByteArray &json)
{
    std::vector<Level> levels;
    for (qsizetype position = 0; position < json.size(); ++position) {
        const char sign = json.at(position);
        if (sign == '"') {
            const qsizetype end = endOfText(json, position);
            if (!levels.empty() && levels.back().expectsKey
                && !enterKey(levels.back(), decoded(json.mid(position, end - position))))
                return placeOf(levels);
            position = end - 1;
        } else if (sign == '{' || sign == '[') {
            levels.push_back({sign == '{', sign == '{', {}, {}, 0});
        } else if (sign == '}' || sign == ']') {
            levels.pop_back();
        } else if (sign == ',') {
            nextEntry(levels.back());
        }
    }
    return {};
}
