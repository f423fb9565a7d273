#ifndef ERRORLISTTEXT_H
#define ERRORLISTTEXT_H

#include <QStringList>

class QAbstractItemModel;

/// An error list as text, a line each row: all roles by their names but the time, so that lists of
/// different runs can be compared.
QStringList errorListText(const QAbstractItemModel &list);

#endif
