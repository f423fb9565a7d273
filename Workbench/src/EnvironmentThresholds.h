#ifndef ENVIRONMENTTHRESHOLDS_H
#define ENVIRONMENTTHRESHOLDS_H

#include <QJsonObject>

/// The variables of the environment by which the plug-in takes other thresholds, with their texts;
/// without those that are not set.
QJsonObject thresholdsOfEnvironment();

/// Sets these variables, and unsets the others of them. To be called before the plug-in is
/// initialised.
void setThresholdsOfEnvironment(const QJsonObject &thresholds);

#endif
