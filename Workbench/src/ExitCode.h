#ifndef EXITCODE_H
#define EXITCODE_H

/// What the exit code of a program says to a script.
namespace ExitCode {

constexpr int Success = 0;
/// A run without a window has ended and its list of errors is not empty.
constexpr int ErrorsRemain = 1;
/// An option or a file is wrong; nothing has been done.
constexpr int BadInput = 2;
/// The work could not be done: no usable plug-in, a port in use, a picture that cannot be written.
constexpr int Failure = 3;

} // namespace ExitCode

#endif
