#ifndef MESSAGE_H
#define MESSAGE_H

#include "JsonObject.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QMap>

#include <functional>

/// What the messages between a site server and its clients have in common: each is a JSON object
/// whose "type" says which one it is.
class Message
{
    Q_DECLARE_TR_FUNCTIONS(Message)

public:
    /// Readers by type. Each takes the keys of its type, all but "type".
    template <typename AnyMessage>
    using Readers = QMap<QString, std::function<AnyMessage(JsonObject &)>>;

    /// Reads a message of one of some types. Throws InputError when it is none, lacks a key or has
    /// an unknown one.
    template <typename AnyMessage>
    static AnyMessage read(const QString &text, const Readers<AnyMessage> &readers)
    {
        JsonObject object = JsonObject::fromText(tr("message"), text.toUtf8());
        const QString type = object.text(typeKey());
        const auto reader = readers.find(type);
        if (reader == readers.end())
            object.fail(typeKey(), tr("one of %1").arg(readers.keys().join(QStringLiteral(", "))),
                        tr("\"%1\"").arg(type));
        AnyMessage message = reader.value()(object);
        object.expectNoMore();
        return message;
    }

    /// A text that is empty when the key is missing.
    static QString optionalText(JsonObject &object, const QString &key)
    {
        return object.has(key) ? object.text(key) : QString();
    }

    /// The beginnings of a message.
    static QJsonObject object(const QString &type) { return {{typeKey(), type}}; }

    /// Inserts a text, unless it is empty.
    static void insertOptional(QJsonObject &object, const QString &key, const QString &text)
    {
        if (!text.isEmpty())
            object.insert(key, text);
    }

    static QString toText(const QJsonObject &object)
    {
        return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }

private:
    static QString typeKey() { return QStringLiteral("type"); }
};

#endif
