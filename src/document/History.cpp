#include "document/History.h"

#include "document/TelescopeFile.h"
#include "model/record/OrrevaData.h"

#include <utility>

namespace {

using D = COrrevaData;

constexpr double (D::*kSettled[])() = {
    &D::GetWanted100PercentFow, &D::GetMirrorDiameter, &D::GetFocalLength,
    &D::GetMirrorThickness,     &D::GetDensity,        &D::GetSecondaryDiameter,
    &D::GetSecondaryOffset,     &D::GetFocuserHeight,  &D::GetFocuserDiameter,
    &D::GetFocuserSpare,        &D::GetOazTravel,      &D::GetOazLength,
    &D::GetOschTravel,          &D::GetDistanceBack,   &D::GetDistanceFront,
    &D::GetThicknessHat,        &D::GetThicknessBox,   &D::GetInsideDiameterHat,
    &D::GetInsideDiameterBox,   &D::GetHeightHat,      &D::GetHeightBox,
    &D::GetRonchiGrating,       &D::GetRonchiConstant, &D::GetStarDiameter,
    &D::GetStarPrecision,       &D::GetWeightMirror,   &D::GetBalanceMirror,
    &D::GetWeightCell,          &D::GetBalanceCell,    &D::GetWeightBox,
    &D::GetBalanceBox,          &D::GetWeightTruss,    &D::GetBalanceTruss,
    &D::GetWeightHat,           &D::GetBalanceHat,     &D::GetWeightSecondary,
    &D::GetBalanceSecondary,    &D::GetWeightEyepiece, &D::GetBalanceEyepiece,
    &D::GetWeightFinder,        &D::GetBalanceFinder,  &D::GetWeightMisc,
    &D::GetBalanceMisc,
};

/// The bytes of the design file that the fields come to once every default is computed.
std::string SettledText(const TelescopeFields& fields)
{
    D record;
    static_cast<TelescopeFields&>(record) = fields;
    // The first reading of the focuser's height is infinite on a fresh record, and defaults that were made of
    // it would stay.
    record.GetFocuserType();
    record.GetOazTravel();
    record.GetTubeType();
    for (double (D::*const get)() : kSettled) {
        (record.*get)();
    }
    return WriteTelescope(record);
}

std::string StoredText(const TelescopeFields& fields)
{
    D record;
    static_cast<TelescopeFields&>(record) = fields;
    return WriteTelescope(record);
}

} // namespace

RecordState StateOf(const COrrevaData& record)
{
    return {record, record.file_path.GetText(), record.modified};
}

void PutState(const RecordState& state, COrrevaData& record)
{
    static_cast<TelescopeFields&>(record) = state.fields;
    record.file_path = state.path.c_str();
    record.modified = state.modified;
}

bool IsSameDesign(const RecordState& a, const RecordState& b)
{
    return a.path == b.path && (a.path.empty() || SettledText(a.fields) == SettledText(b.fields));
}

bool History::Note(const Bilingual& name, const RecordState& now, StepKind kind)
{
    const RecordState before = std::exchange(m_start, now);
    if (IsSameDesign(before, now)) {
        return false;
    }
    m_redo.clear();
    m_undo.push_back({name, kind, before});
    if (m_undo.size() > kMostSteps) {
        m_undo.pop_front();
    }
    return true;
}

RecordState History::Move(Steps& from, Steps& to, RecordState now)
{
    Step step = std::move(from.back());
    from.pop_back();
    to.push_back({step.name, step.kind, std::move(now)});
    return std::move(step.state);
}

void History::Renamed(const std::string& from, const std::string& to)
{
    const auto rename = [&](RecordState& state) {
        if (state.path == from) {
            state.path = to;
        }
    };
    rename(m_start);
    for (Steps* const steps : {&m_undo, &m_redo}) {
        for (auto step = steps->rbegin(); step != steps->rend() && step->kind == StepKind::Changes; ++step) {
            rename(step->state);
        }
    }
}

void History::Saved(const std::string& path, const TelescopeFields& fields)
{
    const std::string stored = StoredText(fields);
    const auto compare = [&](RecordState& state) {
        if (state.path == path) {
            state.modified = StoredText(state.fields) == stored ? 0 : 1;
        }
    };
    compare(m_start);
    for (Steps* const steps : {&m_undo, &m_redo}) {
        for (Step& step : *steps) {
            compare(step.state);
        }
    }
}
