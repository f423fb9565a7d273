#ifndef RESOURCEREADER_H
#define RESOURCEREADER_H

#include "ResourceReport.h"

class JsonObject;

/// Reads the keys "cpu", "memory" and "networks" of an object; throws InputError.
ResourceReport readResources(JsonObject &object);

#endif
