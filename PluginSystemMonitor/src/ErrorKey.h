#ifndef ERRORKEY_H
#define ERRORKEY_H

#include "ErrorKinds.h"

#include <QString>
#include <QStringView>
#include <QVarLengthArray>

/// The unique key of an error, "type_id" or "type_id_subId", put together in place: most keys are
/// only looked up, several for each report of a station, and need no string of their own.
class ErrorKey
{
public:
    /// @param subId is left out if it is empty.
    ErrorKey(ErrorType type, QStringView id, QStringView subId);

    /// The key without a copy of its text: for looking up alone, as long as this object lives.
    QString borrowed() const { return QString::fromRawData(m_text.data(), m_text.size()); }
    QString toString() const { return QString(m_text.data(), m_text.size()); }

private:
    void append(QStringView text) { m_text.append(text.data(), text.size()); }
    void fillMarkers(QStringView subId);

    QVarLengthArray<QChar, 120> m_text;
};

#endif
