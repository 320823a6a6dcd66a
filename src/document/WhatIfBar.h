#pragma once

#include "document/OrrevaDoc.h"

#include <cstdint>
#include <optional>
#include <string>

/// What the slider is to show: whole millimetres; no position leaves it where it stands.
struct SliderState {
    std::int32_t low;
    std::int32_t high;
    std::optional<std::int32_t> position;
};

// The bar's events. Each works on the document's table of trials and its active record. While no telescope
// is loaded the record stays as it is, and a choice only ends an earlier trial.
// -------------------------------------------------------------------------------------

/// The user chose in the list: an earlier trial is undone and the chosen parameter put under trial. Nothing
/// if the selection names no parameter, or the one that is under trial already.
std::optional<SliderState> SelectBarParameter(COrrevaDoc& document, std::int32_t selection);

/// The slider told its position, by being dragged or repainted: the parameter under trial takes it at once. A
/// repaint where the slider stood before writes nothing.
void SlideBar(COrrevaDoc& document, std::int32_t position);

/// The parameter under trial takes a value that the slider shows at `position` at the nearest.
void TryBarValue(COrrevaDoc& document, double value, std::int32_t position);

/// "Reset": the parameter under trial goes back.
std::optional<SliderState> ResetBar(COrrevaDoc& document);

/// "Accept ": the present value becomes the one to go back to; the trial goes on from the new centre.
std::optional<SliderState> AcceptBar(COrrevaDoc& document);

/// Escape or Delete in the list: the trial is undone and ends.
void CancelBar(COrrevaDoc& document);

/// "Brennweite 1480 mm (was 1500 mm)", up to two decimals; empty if nothing is under trial.
std::string BarTrialText(COrrevaDoc& document, int language);
