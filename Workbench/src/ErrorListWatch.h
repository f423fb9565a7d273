#ifndef ERRORLISTWATCH_H
#define ERRORLISTWATCH_H

#include <QAbstractItemModel>
#include <QObject>
#include <QString>

/// One row of the error list.
struct ListedError
{
    QString key; ///< the only identity of an error
    int type = 0;
    QString name;   ///< what is wrong, in words
    QString origin; ///< which device it is about, in words
    QString stationId = {};
    QString deviceId = {}; ///< of the camera, or which part of the station; may be empty
    int category = 0;      ///< 1 an error of a station, 2 of a camera
    qint64 timeMs = 0;     ///< when it was raised, in milliseconds since the epoch
};

/// Tells of each change of an error list as of a single error. The list's roles are found by name.
class ErrorListWatch : public QObject
{
    Q_OBJECT

public:
    /// @param model the list; it must outlive the watch
    explicit ErrorListWatch(QAbstractItemModel &model, QObject *parent = nullptr);

    QList<ListedError> listed() const;

Q_SIGNALS:
    void raised(const ListedError &error);
    /// The row is still in the list while the signal is emitted.
    void cleared(const ListedError &error);
    /// An error that stays listed reads differently now.
    void changed(const ListedError &error);

private:
    ListedError errorAt(int row) const;
    void forRows(int first, int last, void (ErrorListWatch::*notify)(const ListedError &));

    QAbstractItemModel &m_model;
    int m_keyRole;
    int m_typeRole;
    int m_nameRole;
    int m_originRole;
    int m_stationRole;
    int m_deviceRole;
    int m_categoryRole;
    int m_timeRole;
};

#endif
