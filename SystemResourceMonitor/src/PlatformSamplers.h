#ifndef PLATFORMSAMPLERS_H
#define PLATFORMSAMPLERS_H

#include "SamplerFactory.h"

/// The samplers of the system that the module is built for.
SamplerFactory platformSamplers();

#endif
