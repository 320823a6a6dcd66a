#pragma once

#include "document/OrrevaDoc.h"

#include <cstdint>
#include <optional>
#include <span>

enum class Enabled : std::uint8_t {
    Always,
    Loaded,      ///< a telescope is loaded
    LoadedTruss, ///< and its tube is a truss
    Undoable,    ///< a step can be taken back
    Redoable,    ///< one that was taken back can be done again
    Never,       ///< no handler at all
};

/// One command of the program. Texts, prompts and accelerators stand in the form of the main window.
struct Command {
    std::int32_t id;
    Enabled enabled;
    /// What the document does; null for a command of the desktop (printing, tools, language, help).
    void (COrrevaDoc::*action)() = nullptr;
    /// The modal sheet or dialog that is all the command does.
    std::optional<Modal> modal = std::nullopt;
    /// The switch that the check mark shows, null for none.
    std::uint8_t ViewSwitches::*check = nullptr;
    bool check_inverted = false;
    /// What the step of a modal sheet or dialog is called, if it changed something.
    Bilingual step = {nullptr, nullptr};
};

namespace command_id {
inline constexpr std::int32_t kNewQuick = 32771;
inline constexpr std::int32_t kProperties = 32772;
inline constexpr std::int32_t kRaysFromMouse = 32775;
inline constexpr std::int32_t kRaysParallel = 32776;
inline constexpr std::int32_t kInchCalculator = 32777;
inline constexpr std::int32_t kRaysFromFocalPlane = 32778;
inline constexpr std::int32_t kRaytracingSettings = 32779;
inline constexpr std::int32_t kShowWithoutOffset = 32780;
inline constexpr std::int32_t kCentreMarks = 32781;
inline constexpr std::int32_t kShowExtendedFocuser = 32786;
inline constexpr std::int32_t kPolygonCalculator = 32788;
inline constexpr std::int32_t kCalculator = 32789;
inline constexpr std::int32_t kForum = 32790;
inline constexpr std::int32_t kSectorCalculator = 32791;
inline constexpr std::int32_t kTubeProperties = 32792;
inline constexpr std::int32_t kShowBoxAndCage = 32793;
inline constexpr std::int32_t kFoucaultTest = 32794;
inline constexpr std::int32_t kArtificialStar = 32795;
inline constexpr std::int32_t kFieldSimulation = 32796;
inline constexpr std::int32_t kMatchingRonchi = 32800;
inline constexpr std::int32_t kStartest = 32801;
inline constexpr std::int32_t kOpen = 32802;
inline constexpr std::int32_t kSave = 32803;
inline constexpr std::int32_t kSaveAs = 32804;
inline constexpr std::int32_t kExportOslo = 32807;
inline constexpr std::int32_t kGerman = 32808;
inline constexpr std::int32_t kEnglish = 32809;
inline constexpr std::int32_t kHandbook = 32810;
inline constexpr std::int32_t kExportFta = 32811;
inline constexpr std::int32_t kNewDetailed = 32813;
inline constexpr std::int32_t kDesignCheck = 33021;
inline constexpr std::int32_t kCompare = 33022;
inline constexpr std::int32_t kVariation = 33023;
inline constexpr std::int32_t kIllumination = 33041;
inline constexpr std::int32_t kReportPdf = 33061;
inline constexpr std::int32_t kWorkshopSheets = 33062;
inline constexpr std::int32_t kHighContrast = 33063;
inline constexpr std::int32_t kImportOld = 57601;
inline constexpr std::int32_t kPrintSetup = 57606;
inline constexpr std::int32_t kPrint = 57607;
inline constexpr std::int32_t kPrintPreview = 57609;
inline constexpr std::int32_t kRecentFile = 57616; ///< placeholder of a list that holds no entries
inline constexpr std::int32_t kAbout = 57664;
inline constexpr std::int32_t kExit = 57665;
inline constexpr std::int32_t kHelpThemes = 57667;
inline constexpr std::int32_t kContextHelp = 57669;
inline constexpr std::int32_t kHelp = 57670;
inline constexpr std::int32_t kUndo = 33001;
inline constexpr std::int32_t kRedo = 33002;
inline constexpr std::int32_t kEarlierDesigns = 33003;
} // namespace command_id

std::span<const Command> Commands();

/// A key that gives a command, in both languages the same.
struct Accelerator {
    const char* keys; ///< as "Ctrl+N"
    std::int32_t id;
};

std::span<const Accelerator> Accelerators();

/// The command of an id, null if there is none.
const Command* FindCommand(std::int32_t id);

bool IsEnabled(const Command& command, COrrevaDoc& document);
bool IsChecked(const Command& command, const COrrevaDoc& document);

/// Begins a command, and runs it if it is one of the document; false if it is the desktop's, disabled by
/// nature or unknown.
bool RunCommand(std::int32_t id, COrrevaDoc& document);
