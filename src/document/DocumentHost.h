#pragma once

#include "lib/text/Language.h"
#include "model/record/OrrevaData.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

struct IlluminationStops;
struct RescueCopy;

/// What a file dialog shows: a filter in pipe notation ("Text|*.ext|...||"), the ending that a name without
/// one gets, the name that is proposed.
struct FileDialog {
    bool saving;
    const char* filter;
    const char* default_extension;
    const char* file_name;
    Bilingual title{"", ""}; ///< what the dialog does; empty for the toolkit's own words
};

/// The texts of the quick New dialog, as the user leaves them (bytes of code page 1252).
struct QuickNewTexts {
    std::string title;
    std::string aperture;
    std::string focal_length;
};

/// What the dialog proposes, misspelt in both languages.
inline const QuickNewTexts kQuickNewTexts{"Untitleld Telescope", "250", "1500"};

/// The modal sheets and dialogs that commands open; each runs on the current document.
enum class Modal {
    TelescopeSheet, ///< also the wizard of New (detailed), by g_nWizard
    TubeSheet,
    FoucaultSheet,
    RonchiSheet,
    ArtificialStar,
    FieldSimulation,
    Calculator,
    InchCalculator,
    PolygonCalculator,
    SectorCalculator,
    WorkshopSheets,
};

/// What a document asks of its desktop. The window program implements it with its toolkit, the command-line
/// companion with the terminal, tests with a recorder.
class DocumentHost : public RecordHost {
public:
    /// The toolkit's own step of a new document; false if it fails.
    virtual bool OnNewDocument() = 0;
    /// Every view repaints all it shows.
    virtual void UpdateAllViews() = 0;
    /// The path that the user chose (bytes of the file system), empty for Cancel.
    virtual std::string AskPath(const FileDialog& dialog) = 0;
    /// The quick New dialog; false for Cancel.
    virtual bool AskQuickNew(QuickNewTexts& texts) = 0;
    /// The settings of the ray tracing, opened on the button of `miss_in_grey`; false for Cancel.
    virtual bool AskRaytracingSettings(std::uint8_t miss_in_grey) = 0;
    /// Runs a sheet or dialog; false if it ended with Cancel.
    virtual bool RunModal(Modal modal) = 0;
    /// Shows the curve of the exact illumination beside the dialog that runs; `wanted` is the wanted field in
    /// mm.
    virtual void ShowIllumination(const IlluminationStops& /*stops*/, double /*wanted*/) {}
    /// The message of the status bar from now on (code page 1252), empty for none. The bar's other fields the
    /// desktop reads at each refresh: StateText and BarTrialText.
    virtual void ShowStatus(const char* /*text*/) {}
    /// The list of earlier designs, `selected` under its mark; the index of the one to open, nothing for
    /// none.
    virtual std::optional<std::size_t> AskEarlierDesign(std::span<const RescueCopy> /*copies*/,
                                                        std::optional<std::size_t> /*selected*/)
    {
        return std::nullopt;
    }
};
