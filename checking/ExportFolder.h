// The memory of the folder of the last export.
#pragma once

#include <string>

namespace logchecker {

// The registry value, below the current user, that holds the folder without a separator at its end.
// It exists only while that folder is not the user's documents folder.
inline constexpr char kExportKey[] = "SOFTWARE\\Halvern\\Velmar KLT v2\\Tools\\Log Checker";
inline constexpr char kExportValue[] = "ExportCSVPath";

// The folder of the last export; the user's documents folder before any.
std::string RememberedExportFolder();

// Takes the folder part of `file`. A name without one leaves an empty text.
void RememberExportFolder(const std::string& file);

}  // namespace logchecker
