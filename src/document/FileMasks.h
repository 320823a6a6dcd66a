#pragma once

#include "document/DocumentHost.h"
#include "lib/text/Language.h"

#include <string>

// Every file dialog hides the read-only box and asks before it overwrites.

inline constexpr const char* kTelescopeFilter =
    "Orreva Dateien (*.orreva.xml)|*.orreva.xml|All Files (*.*)|*.*||";
inline constexpr FileDialog kOpenTelescope{false, kTelescopeFilter, "orreva.xml", ""};
inline constexpr FileDialog kSaveTelescope{true, kTelescopeFilter, "orreva.xml", ""};

inline constexpr FileDialog kExportOslo{true,
                                        "OSLO Lens Files (*.len)|*.len|All Files (*.*)|*.*||",
                                        "*.len",
                                        "untitled.len",
                                        {"Export OSLO Format", "OSLO Daten exportieren"}};
/// Kept: the default extension of the other export stands here too.
inline constexpr FileDialog kExportFta{
    true,
    "FTA Files (*.mir)|*.mir|All Files (*.*)|*.*||",
    "*.len",
    "untitled.mir",
    {"Export Foucault Test Analysis 2.0B Data", "Foucault Test Analysis 2.0B Daten exportieren"}};

inline constexpr Bilingual kPaperFilter{"PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*||",
                                        "PDF-Dateien (*.pdf)|*.pdf|Alle Dateien (*.*)|*.*||"};
/// A file of pages; the proposed name must outlive the dialog.
constexpr FileDialog PaperMask(int language, const char* name, const Bilingual& title)
{
    return {true, kPaperFilter.In(language), "pdf", name, title};
}

/// The old format's mask is the one of the toolkit's document template, in the language of the program.
inline constexpr Bilingual kOldFormatFilter{
    "File Type Orreva (*.orreva)|*.orreva|All Files (*.*)|*.*||",
    "Dateityp Orreva (*.orreva)|*.orreva|All Files (*.*)|*.*||",
};
constexpr FileDialog OldFormatMask(int language)
{
    return {false, kOldFormatFilter.In(language), "orreva", ""};
}

/// The ending that the first choice of a dialog's filter shows, without its dot: "len", "orreva.xml". It
/// stands in for the default extension, which may hold an asterisk.
std::string FilterEnding(const FileDialog& dialog);

/// The path that a dialog's answer stands for. To be opened, a name stays as it was typed if something stands
/// there, and else gets FilterEnding if something stands there. To be saved under the first choice of the
/// filter, it gets FilterEnding unless it ends so; under another choice, unless it has an ending of its own
/// or begins with a dot. A path that names no file stays as it is.
std::string WithEnding(const FileDialog& dialog, const std::string& path, bool firstChoice = true);
