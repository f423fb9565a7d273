#ifndef SECTIONS_H
#define SECTIONS_H

#include <QString>

struct Options;

// What a plug-in costs besides storms. Each measures and returns a section of the report.

/// How long a plug-in file takes from its loading to its initialisation.
QString measureLoadTime(const Options &options);

/// How much memory a listed error takes.
QString measureMemory(const Options &options);

/// How much CPU time a plug-in takes that has nothing to do but sample.
QString measureIdle(const Options &options);

/// What one sample of the client machine costs beside two libraries that read the same figures.
QString measureSamplerTick(const Options &options);

#endif
