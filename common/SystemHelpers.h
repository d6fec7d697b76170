// What the program asks of the system's shell.
#pragma once

#include <cstdint>
#include <string>

#include "platform/SystemFacts.h"

namespace logchecker {

// The short form of a path, as the system gives it.
std::string GetShortPath(const std::string& path);

// Copies, or moves, a file. `title` is the progress title; with `confirm` the user is asked before
// something is replaced. 0 on success, otherwise the system's result.
int32_t ShellFileOperation(const std::string& from, const std::string& to, const std::string& title,
                           intptr_t ownerWindow, bool move, bool confirm);

// The path of a well-known folder by its number; 5 is the user's documents folder. "" if the system
// fails.
std::string GetSpecialPath(int32_t folderNumber);
inline constexpr int32_t kDocumentsFolder = 5;

// The folder that the program's own file lies in.
std::string GetProgramFolder();

// The system's version, filled by GetWindowsVersion.
extern OSVERSIONINFO gOSVersionInfo;
void GetWindowsVersion();

}  // namespace logchecker
