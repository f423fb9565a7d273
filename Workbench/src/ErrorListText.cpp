#include "ErrorListText.h"

#include <QAbstractItemModel>
#include <QMap>

QStringList errorListText(const QAbstractItemModel &list)
{
    QMap<QString, int> roles;
    const QHash<int, QByteArray> names = list.roleNames();
    for (auto role = names.begin(); role != names.end(); ++role) {
        if (role.value() != "timestampRole")
            roles.insert(QString::fromLatin1(role.value()), role.key());
    }
    QStringList lines;
    QStringList fields;
    for (int row = 0; row < list.rowCount(); ++row) {
        fields.clear();
        for (auto role = roles.cbegin(); role != roles.cend(); ++role)
            fields.append(role.key() + u'=' + list.index(row, 0).data(role.value()).toString());
        lines.append(fields.join(QStringLiteral("; ")));
    }
    return lines;
}
