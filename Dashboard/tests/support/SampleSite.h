#ifndef SAMPLESITE_H
#define SAMPLESITE_H

#include <QVariant>

class FakeLog;
class FakePlugin;

/// A small site for pictures: five stations, one of them below another, with a dozen errors.
namespace SampleSite {

/// The moment that the pictures show, in milliseconds since the epoch.
qint64 now();

/// The host's list of stations; two of them are disconnected unless all are @p well.
QVariantList stations(bool well);

/// Raises the errors and answers which stations support monitoring.
void fillErrors(FakePlugin &plugin);

/// Puts a station with two network interfaces into focus and lets it report for a while.
void fillUsage(FakePlugin &plugin);

/// Samples of the client machine, some of them failed.
void fillClient(FakePlugin &plugin);

/// The first snoozes of five, as the host hands them in; the fifth is over at the moment shown.
QVariantList snoozes(int count);

/// Brings the error of the fifth snooze back.
void endSnooze(FakePlugin &plugin);

/// Entries of a few days.
void fillLog(FakeLog &log);

} // namespace SampleSite

#endif
