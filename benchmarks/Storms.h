#ifndef STORMS_H
#define STORMS_H

#include <QString>

struct Options;

/// Runs the scenarios that are wanted and returns their table, empty when none is.
QString measureStorms(const Options &options);

#endif
