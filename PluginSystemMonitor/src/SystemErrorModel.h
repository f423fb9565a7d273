#ifndef SYSTEMERRORMODEL_H
#define SYSTEMERRORMODEL_H

#include <QStandardItemModel>

/// The error list: one top-level row per error, appended in the order of arrival and never moved.
class SystemErrorModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Role : int {
        StationIDRole = Qt::UserRole + 1, ///< string; id of the station that the error belongs to
        DeviceIDRole,      ///< string; id of the camera, or the error's sub-id, which may be empty
        ErrorTypeRole,     ///< int, an ErrorType
        ErrorCategoryRole, ///< int, an ErrorCategory
        TimestampRole,     ///< qint64; when the error was raised, milliseconds since the epoch
        ErrorNameRole,     ///< string, translated
        TriggerDeviceNameRole, ///< string, translated; which device raised the error
        UniqueIDRole,          ///< string; the error's key
    };

    explicit SystemErrorModel(QObject *parent);

    /// The eight roles above and no others.
    QHash<int, QByteArray> roleNames() const override;
};

#endif
