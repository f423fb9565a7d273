#ifndef JSONKEYS_H
#define JSONKEYS_H

#include <QByteArray>
#include <QString>

/// The place of the first key that is written twice in one object, such as "stations[1].id"; empty
/// when there is none. Qt's parser keeps the last of such values and says nothing.
///
/// @param json valid JSON
QString repeatedKey(const QByteArray &json);

#endif
