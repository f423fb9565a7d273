#ifndef MACHINE_H
#define MACHINE_H

#include <QString>

/// The date, and what the figures depend on: processor, system, Qt, compiler, build.
QString describeRun();

#endif
