#pragma once

#include "document/DocumentHost.h"
#include "lib/Language.h"

#include <string>
#include <vector>

// Every file dialog hides the read-only box and asks before it overwrites.

inline constexpr const char* kTelescopeFilter =
    "Orreva Dateien (*.orreva.xml)|*.orreva.xml|All Files (*.*)|*.*||";
inline constexpr FileDialog kOpenTelescope{false, kTelescopeFilter, "orreva.xml", ""};
inline constexpr FileDialog kSaveTelescope{true, kTelescopeFilter, "orreva.xml", ""};

inline constexpr FileDialog kExportOslo{true, "OSLO Lens Files (*.len)|*.len|All Files (*.*)|*.*||", "*.len",
                                        "untitled.len"};
/// Kept: the default extension of the other export stands here too.
inline constexpr FileDialog kExportFta{true, "FTA Files (*.mir)|*.mir|All Files (*.*)|*.*||", "*.len",
                                       "untitled.mir"};

/// The old format's mask is the one of the toolkit's document template, in the language of the program.
inline constexpr Bilingual kOldFormatFilter{
    "File Type Orreva (*.orreva)|*.orreva|All Files (*.*)|*.*||",
    "Dateityp Orreva (*.orreva)|*.orreva|All Files (*.*)|*.*||",
};
constexpr FileDialog OpenOldFormat(int language)
{
    return {false, kOldFormatFilter.In(language), "orreva", ""};
}

/// One choice of a dialog's filter: "FTA Files (*.mir)" and "*.mir".
struct FileFilter {
    std::string text;
    std::string pattern;
};

/// The choices of a filter in pipe notation, in order.
std::vector<FileFilter> SplitFilter(const char* filter);

/// The ending of the dialog's first choice, with its point; empty without a choice.
std::string EndingOf(const FileDialog& dialog);

/// The path that a dialog's answer stands for. A name typed without an ending gets the one that the dialog's
/// first filter shows, not its default extension, which may hold an asterisk. A name with an ending, an empty
/// path, and a file to be opened that exists as it was typed stay as they are.
std::string WithEnding(const FileDialog& dialog, const std::string& path);
