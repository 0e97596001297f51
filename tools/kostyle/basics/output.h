// What a command prints. On Windows a console gets it as Unicode.
#pragma once

#include <string_view>

namespace tool {

/// Makes sure that no file that is opened later takes the place of a standard stream that is closed.
void holdStandardStreams() noexcept;

/// On the standard output. Throws OutputFailed with the system's reason.
void print(std::string_view utf8);

/// The same for bytes as they are, line ends too.
void printBytes(std::string_view bytes);

/// The same for what is printed so far but not yet written.
void flushOutput();

/// One line on stderr, in front of which stands "kostyle: ". When it cannot be printed, nobody reads
/// it.
void printError(std::string_view message) noexcept;

/// What the user should know although all is well: one line on stderr, unless it is to be quiet.
void notice(std::string_view message) noexcept;

/// As it is, and whether nobody reads it or not.
void printOnStderr(std::string_view utf8) noexcept;

}  // namespace tool
