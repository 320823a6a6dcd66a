#include "model/analysis/TubeDesign.h"

#include "lib/text/FormatText.h"
#include "model/rows/WantedField.h"

TubeDesign DesignOf(std::int32_t tube_type) { return tube_type == 0 ? kSolidTube : kTrussTube; }

TubeMeasures ReadTubeMeasures(COrrevaData& record)
{
    TubeMeasures texts;
    texts.inside_diameter = ShowNumber(record, kTubeInsideDiameter);
    texts.distance_back = ShowNumber(record, kTubeDistanceBack);
    texts.distance_front = ShowNumber(record, kTubeDistanceFront);
    texts.wanted_field = ShowNumber(record, kWantedField);
    return texts;
}

void StoreTubeMeasures(COrrevaData& record, const TubeMeasures& texts, TubeDesign design)
{
    StoreNumber(record, kTubeInsideDiameter, texts.inside_diameter);
    StoreNumber(record, kTubeDistanceBack, texts.distance_back);
    StoreNumber(record, kTubeDistanceFront, texts.distance_front);
    StoreNumber(record, kWantedField, texts.wanted_field);
    if (design == kSolidTube) {
        record.SetTubeType(0);
    } else if (record.GetTubeType() < 1) {
        record.SetTubeType(1);
    }
    record.ResetCaches();
}

void StoreWallThickness(COrrevaData& record, const std::string& text)
{
    StoreNumber(record, kTubeThickness, text);
    record.ResetCaches();
}

std::string ResetTubeMeasure(COrrevaData& record, const NumberField& field)
{
    std::string text = ResetNumber(record, field);
    record.ResetCaches();
    return text;
}

TrussTexts ReadTruss(COrrevaData& record)
{
    TrussTexts texts;
    texts.box_thickness = ShowNumber(record, kTrussBoxThickness);
    texts.box_height = ShowNumber(record, kTrussBoxHeight);
    texts.cage_thickness = ShowNumber(record, kTrussCageThickness);
    texts.cage_height = ShowNumber(record, kTrussCageHeight);
    return texts;
}

void StoreTruss(COrrevaData& record, const TrussTexts& texts)
{
    StoreNumber(record, kTrussBoxThickness, texts.box_thickness);
    StoreNumber(record, kTrussCageThickness, texts.cage_thickness);
    StoreNumber(record, kTrussBoxHeight, texts.box_height);
    StoreNumber(record, kTrussCageHeight, texts.cage_height);
}

double TrussGap(COrrevaData& record)
{
    const double F = record.GetFocalLength();
    const double Hb = record.GetHeightBox();
    const double s = record.GetMirrorThickness();
    const double back = record.GetDistanceBack();
    const double Hh = record.GetHeightHat();
    const double front = record.GetDistanceFront();
    const double z = record.GetFocalPlaneHeight();
    return F - (Hb - s - back) - (Hh - front) - z;
}

std::string TrussGapText(COrrevaData& record) { return FormatText("%0.2f", TrussGap(record)); }

std::vector<TubeType> TrussChoices()
{
    std::vector<TubeType> choices;
    for (const TubeType& type : kTubeTypes) {
        if (type.tube_type < 0) {
            break;
        }
        choices.insert(choices.begin(), type);
    }
    return choices;
}

std::int32_t TrussChoiceOf(std::int32_t tube_type)
{
    const std::vector<TubeType> choices = TrussChoices();
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (choices[i].tube_type == tube_type) {
            return static_cast<std::int32_t>(i);
        }
    }
    return -1;
}

bool StoreTrussChoice(COrrevaData& record, std::int32_t row)
{
    const std::vector<TubeType> choices = TrussChoices();
    if (row < 0 || static_cast<std::size_t>(row) >= choices.size()) {
        return false;
    }
    record.SetTubeType(choices[static_cast<std::size_t>(row)].tube_type);
    record.ResetCaches();
    return true;
}
