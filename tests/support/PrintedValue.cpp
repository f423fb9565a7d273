#include "PrintedValue.h"

#include "ModelRoles.h"

#include <QLocale>
#include <QMetaType>

namespace {

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

QString printedDouble(double value)
{
    const QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
    return text.contains(u'.') || text.contains(u'e') ? text : text + QStringLiteral(".0");
}

QString printedList(const QVariantList &list)
{
    QStringList parts;
    for (const QVariant &value : list)
        parts.append(printedValue(value));
    return u'[' + parts.join(QStringLiteral(", ")) + u']';
}

QString printedMap(const QVariantMap &map)
{
    QStringList parts;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        parts.append(quoted(entry.key()) + QStringLiteral(": ") + printedValue(entry.value()));
    return u'{' + parts.join(QStringLiteral(", ")) + u'}';
}

QString printedHistory(const QVariantList &history)
{
    QStringList parts;
    for (qsizetype begin = 0; begin < history.size();) {
        const QString text = printedValue(history.at(begin));
        qsizetype end = begin + 1;
        while (end < history.size() && printedValue(history.at(end)) == text)
            ++end;
        parts.append(QStringLiteral("%1 x %2").arg(text).arg(end - begin));
        begin = end;
    }
    return parts.join(QStringLiteral(", "));
}

template <typename Printer>
QStringList printedRows(const QAbstractItemModel &model, Printer printed)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows.append(printed(model.index(row, 0)));
    return rows;
}

} // namespace

QString printedValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QStringLiteral("invalid");
    case QMetaType::Int:
    case QMetaType::Bool:
        return value.toString();
    case QMetaType::LongLong:
        return value.toString() + QStringLiteral("LL");
    case QMetaType::ULongLong:
        return value.toString() + QStringLiteral("ULL");
    case QMetaType::Double:
        return printedDouble(value.toDouble());
    case QMetaType::QString:
        return quoted(value.toString());
    case QMetaType::QVariantList:
        return printedList(value.toList());
    case QMetaType::QVariantMap:
        return printedMap(value.toMap());
    case QMetaType::QStringList:
        return QStringLiteral("QStringList") + printedList(value.toList());
    default:
        return QString::fromUtf8(value.typeName()) + u'(' + value.toString() + u')';
    }
}

QString printedError(const ErrorValues &error)
{
    return QStringLiteral("%1 station %2 device %3 type %4 category %5 name %6 from %7")
        .arg(printedValue(error.key), printedValue(error.stationID), printedValue(error.deviceID),
             printedValue(error.type), printedValue(error.category), printedValue(error.name),
             printedValue(error.origin));
}

QString printedError(const QModelIndex &index)
{
    return printedError(ErrorValues{index.data(ErrorRole::UniqueID),
                                    index.data(ErrorRole::StationID),
                                    index.data(ErrorRole::DeviceID), index.data(ErrorRole::Type),
                                    index.data(ErrorRole::Category), index.data(ErrorRole::Name),
                                    index.data(ErrorRole::TriggerDeviceName)});
}

QStringList printedErrors(const QAbstractItemModel &errors)
{
    return printedRows(errors, [](const QModelIndex &index) { return printedError(index); });
}

QStringList errorKeys(const QAbstractItemModel &errors)
{
    return printedRows(errors, [](const QModelIndex &index) {
        return index.data(ErrorRole::UniqueID).toString();
    });
}

QString printedResource(const QModelIndex &index)
{
    return QStringLiteral("type %1 title %2 subtitle %3 threshold %4 bandwidth %5 history %6")
        .arg(printedValue(index.data(ResourceRole::Type)),
             printedValue(index.data(ResourceRole::Title)),
             printedValue(index.data(ResourceRole::Subtitle)),
             printedValue(index.data(ResourceRole::Threshold)),
             printedValue(index.data(ResourceRole::Bandwidth)),
             printedHistory(index.data(ResourceRole::UsageList).toList()));
}

QStringList printedResources(const QAbstractItemModel &resources)
{
    return printedRows(resources, printedResource);
}
