#include "document/WhatIfBar.h"

#include "lib/text/CodePage.h"
#include "lib/text/Log.h"
#include "lib/text/Numbers.h"

namespace {

using D = COrrevaData;

const BarParameter kParameters[] = {
    {"Brennweite", &D::GetFocalLength, &D::SetFocalLength},
    {"Hauptspiegeldurchmesser", &D::GetMirrorDiameter, &D::SetMirrorDiameter},
    {"Fangspiegeldurchmesser", &D::GetSecondaryDiameter, &D::SetSecondaryDiameter},
    {"Tubusdurchmesser", &D::GetInsideDiameterHat, &D::SetInsideDiameterHat},
    {"OAZ-Durchmesser", &D::GetFocuserDiameter, &D::SetFocuserDiameter},
    {"OAZ-Höhe"_cp1252, &D::GetFocuserHeight, &D::SetFocuserHeight},
    {"OAZ-Extra Höhe für Zubehör"_cp1252, &D::GetFocuserSpare, &D::SetFocuserSpare},
};

/// A trial: the parameter's accessors with the document's entry for it.
struct Trial {
    const BarParameter& parameter;
    BarParam& entry;
};

/// Nothing without a telescope: a trial on a cleared record would mark it as changed, and there is no file to
/// save it to.
std::optional<Trial> CurrentTrial(COrrevaDoc& document)
{
    if (!document.HasFile()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < std::size(kParameters); ++i) {
        if (document.bar_params[i].selected != 0) {
            return Trial{kParameters[i], document.bar_params[i]};
        }
    }
    return std::nullopt;
}

double Value(COrrevaDoc& document, const BarParameter& parameter)
{
    return (document.active_record->*parameter.get)();
}

void Restore(COrrevaDoc& document, const Trial& trial)
{
    (document.active_record->*trial.parameter.set)(trial.entry.value);
}

void Recompute(COrrevaDoc& document)
{
    document.Recalculate();
    document.UpdateAllViews();
}

SliderState RangeAround(std::int32_t i)
{
    return {TruncToInt32(i * 0.5), TruncToInt32(i * 2.0), std::nullopt};
}

SliderState CentredOn(double value)
{
    const std::int32_t i = TruncToInt32(value);
    SliderState state = RangeAround(i);
    state.position = i;
    return state;
}

} // namespace

std::span<const BarParameter> BarParameters() { return kParameters; }

std::optional<SliderState> SelectBarParameter(COrrevaDoc& document, std::int32_t selection)
{
    const bool named = selection >= 0 && static_cast<std::size_t>(selection) < std::size(kParameters);
    const auto index = static_cast<std::size_t>(selection);
    if (named && document.bar_params[index].selected != 0) {
        return std::nullopt;
    }
    if (const auto trial = CurrentTrial(document)) {
        Restore(document, *trial);
    }
    for (BarParam& entry : document.bar_params) {
        entry.selected = 0;
    }
    std::optional<SliderState> state;
    if (named && document.HasFile()) {
        const double v = Value(document, kParameters[index]);
        document.bar_params[index] = {1, v};
        state = CentredOn(v);
    }
    LibString line;
    line.Format("Sel: %d", selection);
    LogText(line);
    return state;
}

void SlideBar(COrrevaDoc& document, std::int32_t position)
{
    if (const auto trial = CurrentTrial(document)) {
        (document.active_record->*trial->parameter.set)(position);
        Recompute(document);
    }
}

std::optional<SliderState> ResetBar(COrrevaDoc& document)
{
    const auto trial = CurrentTrial(document);
    if (!trial) {
        return std::nullopt;
    }
    Restore(document, *trial);
    const SliderState state = CentredOn(Value(document, trial->parameter));
    Recompute(document);
    return state;
}

std::optional<SliderState> AcceptBar(COrrevaDoc& document)
{
    const auto trial = CurrentTrial(document);
    if (!trial) {
        return std::nullopt;
    }
    trial->entry.value = Value(document, trial->parameter);
    const std::int32_t i = TruncToInt32(trial->entry.value);
    return RangeAround(i == 1 ? 2 : i);
}
