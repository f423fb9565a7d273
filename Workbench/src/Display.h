#ifndef DISPLAY_H
#define DISPLAY_H

class QProcessEnvironment;

/// Whether windows can be shown: there is an X or Wayland display, or a platform has been chosen
/// that shows them elsewhere.
bool hasDisplay(const QProcessEnvironment &environment);

/// Makes the application that is about to be created draw into memory only, in software. Leaves
/// alone what the environment sets.
void drawOffscreen();

#endif
