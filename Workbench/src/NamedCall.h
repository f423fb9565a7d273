#ifndef NAMEDCALL_H
#define NAMEDCALL_H

#include <QMetaMethod>
#include <QVariant>

class QObject;

/// The slot or invokable method of a name and a number of arguments; an invalid one when there is
/// none.
QMetaMethod methodByName(const QObject &object, const QByteArray &name, qsizetype argumentCount);

/// Calls a method at once, whatever its access, with up to four arguments. They are converted to
/// the types of its parameters.
///
/// @return what it returns; an invalid value for nothing and when there is no such method
QVariant callByName(QObject &object, const QByteArray &name, const QVariantList &arguments);

#endif
