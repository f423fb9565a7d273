#ifndef SCENARIOVALUES_H
#define SCENARIOVALUES_H

#include <QCoreApplication>

class JsonObject;
class Site;

/// The values that several kinds of a scenario's events have in common. What cannot be read throws
/// InputError.
class ScenarioValues
{
    Q_DECLARE_TR_FUNCTIONS(ScenarioFile)

public:
    /// A time or duration that stands in seconds under a key.
    static qint64 milliseconds(JsonObject &object, const QString &key, double leastSeconds = 0);

    /// The id under "camera", which must be one of the site's.
    static QString cameraId(JsonObject &event, const Site &site);
    /// The id under "station", which must be one of the site's.
    static QString stationId(JsonObject &event, const Site &site);

    /// Throws: the text under a key is not as expected.
    [[noreturn]] static void fail(const JsonObject &event, const QString &key,
                                  const QString &expected, const QString &text);
};

#endif
