#include "NamedCall.h"

#include <array>

namespace {

constexpr qsizetype MaxArguments = 4;

} // namespace

QMetaMethod methodByName(const QObject &object, const QByteArray &name, qsizetype argumentCount)
{
    const QMetaObject &type = *object.metaObject();
    for (int index = 0; index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        if (method.methodType() != QMetaMethod::Signal && method.name() == name
            && method.parameterCount() == argumentCount)
            return method;
    }
    return {};
}

QVariant callByName(QObject &object, const QByteArray &name, const QVariantList &arguments)
{
    const QMetaMethod method = methodByName(object, name, arguments.size());
    if (!method.isValid() || arguments.size() > MaxArguments)
        return {};
    QVariantList values = arguments;
    std::array<QGenericArgument, MaxArguments> passed;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const QMetaType type = method.parameterMetaType(static_cast<int>(i));
        values[i].convert(type);
        passed[static_cast<std::size_t>(i)] = QGenericArgument(type.name(), values[i].constData());
    }
    const QMetaType type = method.returnMetaType();
    const bool returns = type.id() != QMetaType::Void;
    QVariant result = returns ? QVariant(type) : QVariant();
    method.invoke(&object, Qt::DirectConnection,
                  returns ? QGenericReturnArgument(type.name(), result.data())
                          : QGenericReturnArgument(),
                  passed[0], passed[1], passed[2], passed[3]);
    return result;
}
