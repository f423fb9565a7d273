#ifndef PROCESSORNAME_H
#define PROCESSORNAME_H

#include <QString>

/// The processor's model, or its architecture where the system does not tell.
QString processorName();

#endif
