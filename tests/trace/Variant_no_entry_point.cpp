// A library that can be opened but lacks the entry point: this file is empty on purpose.
