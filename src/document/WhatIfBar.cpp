#include "document/WhatIfBar.h"

#include "lib/text/FormatText.h"
#include "lib/text/Log.h"
#include "lib/text/Numbers.h"

#include <algorithm>

namespace {

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
    const auto index = TrialAmong(document.bar_params);
    if (!index) {
        return std::nullopt;
    }
    const auto i = static_cast<std::size_t>(*index);
    return Trial{BarParameters()[i], document.bar_params[i]};
}

double Value(COrrevaDoc& document, const BarParameter& parameter)
{
    return (document.active_record->*parameter.get)();
}

/// What rests on the parameter, and was entered perhaps, goes back with it: the setter clears it.
void Restore(COrrevaDoc& document, const Trial& trial)
{
    COrrevaData& data = *document.active_record;
    (data.*trial.parameter.set)(trial.entry.value);
    if (document.bar_start) {
        const TelescopeFields& start = document.bar_start->fields;
        data.weight_mirror = start.weight_mirror;
        data.balance_mirror = start.balance_mirror;
        data.secondary_offset = start.secondary_offset;
    }
}

/// Undoes a trial that ends. A record that is again as it was counts as changed no more than it did.
void TakeBack(COrrevaDoc& document, const Trial& trial)
{
    COrrevaData& data = *document.active_record;
    if (Value(document, trial.parameter) == trial.entry.value) {
        return;
    }
    Restore(document, trial);
    document.Recalculate();
    if (document.bar_start && IsSameDesign(*document.bar_start, document.PresentState())) {
        data.SetModified(document.bar_start->modified);
    }
    document.UpdateAllViews();
}

void Recompute(COrrevaDoc& document)
{
    document.Recalculate();
    document.UpdateAllViews();
}

/// The lower end first, for a negative centre too.
SliderState RangeAround(std::int32_t i)
{
    const std::int32_t half = TruncToInt32(i * 0.5);
    const std::int32_t twice = TruncToInt32(i * 2.0);
    return {std::min(half, twice), std::max(half, twice), std::nullopt};
}

/// The slider stands there from now on, so that its repaint is no move.
SliderState CentredOn(COrrevaDoc& document, double value)
{
    const std::int32_t i = TruncToInt32(value);
    SliderState state = RangeAround(i);
    state.position = i;
    document.bar_position = i;
    return state;
}

/// Up to two decimals, none of them a zero at the end.
std::string PlainNumber(double value)
{
    std::string text = FormatText("%.2f", value);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.')) {
            text.pop_back();
        }
    }
    return text == "-0" ? "0" : text;
}

} // namespace

std::optional<SliderState> SelectBarParameter(COrrevaDoc& document, std::int32_t selection)
{
    const bool named = selection >= 0 && static_cast<std::size_t>(selection) < BarParameters().size();
    const auto index = static_cast<std::size_t>(selection);
    if (named && document.bar_params[index].selected != 0) {
        return std::nullopt;
    }
    CancelBar(document);
    std::optional<SliderState> state;
    if (named && document.HasFile()) {
        const double v = Value(document, BarParameters()[index]);
        document.bar_params[index] = {1, v};
        document.StartBarTrial();
        state = CentredOn(document, v);
    }
    LibString line;
    line.Format("Sel: %d", selection);
    LogText(line);
    return state;
}

void SlideBar(COrrevaDoc& document, std::int32_t position)
{
    const auto trial = CurrentTrial(document);
    if (!trial || position == document.bar_position) {
        return;
    }
    TryBarValue(document, position, position);
}

void TryBarValue(COrrevaDoc& document, double value, std::int32_t position)
{
    if (const auto trial = CurrentTrial(document)) {
        document.bar_position = position;
        (document.active_record->*trial->parameter.set)(value);
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
    const SliderState state = CentredOn(document, Value(document, trial->parameter));
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
    document.AcceptBarTrial({trial->parameter.text, trial->parameter.text});
    const std::int32_t i = TruncToInt32(trial->entry.value);
    return RangeAround(i == 1 ? 2 : i);
}

void CancelBar(COrrevaDoc& document)
{
    if (const auto trial = CurrentTrial(document)) {
        TakeBack(document, *trial);
    }
    document.EndBarTrial();
}

std::string BarTrialText(COrrevaDoc& document, int language)
{
    static constexpr Bilingual kTrial{"%s %s mm (was %s mm)", "%s %s mm (vorher %s mm)"};
    const auto trial = CurrentTrial(document);
    return trial ? FormatText(kTrial.In(language), trial->parameter.text,
                              PlainNumber(Value(document, trial->parameter)).c_str(),
                              PlainNumber(trial->entry.value).c_str())
                 : std::string();
}
