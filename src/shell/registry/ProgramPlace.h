// Where the program and its temporary files lie, in the narrow code page, and what the system is like. Safe
// on every thread.
#pragma once

#include <string>

namespace ProgramPlace {

// What parts the elements of a path.
[[nodiscard]] std::string joined(const std::string &folder, const std::string &name);

// The running program's folder; empty when the system does not tell.
[[nodiscard]] std::string programFolder();
// "KelRegOp" gives the file name that a program of this name has here.
[[nodiscard]] std::string programFile(const std::string &baseName);
// Empty when there is none.
[[nodiscard]] std::string temporaryFolder();

[[nodiscard]] bool fileExists(const std::string &path);
// Makes an empty file; one that is there stays as it is. False when it could not be opened.
[[nodiscard]] bool touch(const std::string &path);

// Whether a program without raised rights cannot write what belongs to the machine here, and may ask for
// them.
[[nodiscard]] bool needsElevation();

} // namespace ProgramPlace
