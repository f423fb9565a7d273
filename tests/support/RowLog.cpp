#include "RowLog.h"

#include "CallLog.h"

#include <QAbstractItemModel>

using namespace Qt::Literals::StringLiterals;

RowLog::RowLog(const QAbstractItemModel &model, CallLog &log)
{
    using Model = QAbstractItemModel;
    const auto rows = [&log](const QString &what) {
        return [&log, what](const QModelIndex &parent, int first, int last) {
            if (!parent.isValid())
                log.add(u"%1 rows %2 to %3"_s.arg(what).arg(first).arg(last));
        };
    };
    QObject::connect(&model, &Model::rowsInserted, &m_receiver, rows(u"insert"_s));
    QObject::connect(&model, &Model::rowsRemoved, &m_receiver, rows(u"remove"_s));
    QObject::connect(
        &model, &Model::dataChanged, &m_receiver,
        [&log](const QModelIndex &from, const QModelIndex &to, const QList<int> &roles) {
            QStringList numbers;
            for (const int role : roles)
                numbers.append(QString::number(role));
            log.add(u"change rows %1 to %2, roles %3"_s.arg(from.row())
                        .arg(to.row())
                        .arg(numbers.join(u' ')));
        });
    const auto whole = [&log](const QString &what) { return [&log, what] { log.add(what); }; };
    QObject::connect(&model, &Model::modelReset, &m_receiver, whole(u"reset rows"_s));
    QObject::connect(&model, &Model::layoutChanged, &m_receiver, whole(u"lay out rows"_s));
    QObject::connect(&model, &Model::rowsMoved, &m_receiver, whole(u"move rows"_s));
}
