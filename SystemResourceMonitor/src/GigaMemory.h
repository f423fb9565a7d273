#ifndef GIGAMEMORY_H
#define GIGAMEMORY_H

/// A number of bytes in gibibytes.
float displayGigaMemory(float bytes);

#endif
