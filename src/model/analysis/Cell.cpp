#include "model/analysis/Cell.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "model/rows/RowMaker.h"

namespace {

constexpr double kInchPerMillimetre = 0.03937007874015748; // 1 / 25.4 as stored

/// Coefficients of one kind of cell. The negative ones of the two three-point cells are meant so.
struct CellFit {
    double CellFigures::*figure;
    double a;
    double b;
};

constexpr CellFit kFits[] = {
    {&CellFigures::three_at_edge, -1.676147293e-5, 2.988367484e-5},
    {&CellFigures::three_at_70, -4.545297549e-5, 1.159621139e-5},
    {&CellFigures::nine, 3.731211914e-6, 1.0489325e-6},
    {&CellFigures::eighteen, 1.876157553e-5, 1.2261583e-7},
};

struct CellSentence {
    double CellFigures::*figure;
    Bilingual text;
};

// Kept: the nine points are told as six, and the sentence on eighteen points is German in both languages.
constexpr CellSentence kSentences[] = {
    {&CellFigures::three_at_edge,
     {"3 points of support at the edge are OK,",
      "Es reicht eine Spiegelzelle mit 3 Auflagepunkten am Rand."}},
    {&CellFigures::three_at_70,
     {"3 points of support at 70% Radius are OK,",
      "Der Spiegel sollte auf einer 3 Punkt Spiegelzelle mit Punkten bei 70% des Radius gelagert werden."}},
    {&CellFigures::nine,
     {"6 points of support are OK.", "Der Spiegel sollte auf einer 6 Punkt Spiegelzelle gelagert werden."}},
    {&CellFigures::eighteen,
     {"Der Spiegel sollte auf einer 18 Punkt Spiegelzelle gelagert werden.",
      "Der Spiegel sollte auf einer 18 Punkt Spiegelzelle gelagert werden."}},
};
constexpr Bilingual kNotEnough{
    "18 points of support are not enough!",
    "Der Spiegel sollte auf einer Spiegelzelle mit mehr als 18 Punkten gelagert werden."};

constexpr double kGoodEnough = 32; // lambda / 32

} // namespace

CellFigures ComputeCell(double diameter, double thickness)
{
    const double d = diameter * kInchPerMillimetre;
    const double t = thickness * kInchPerMillimetre;
    CellFigures figures{};
    for (const CellFit& fit : kFits) {
        figures.*fit.figure = 1 / (d * d * fit.a + d * d * d * d * fit.b / (t * t));
    }
    return figures;
}

CellFigures ComputeCell(COrrevaData& record)
{
    const double diameter = record.GetMirrorDiameter();
    const double thickness = record.GetMirrorThickness();
    return ComputeCell(diameter, thickness);
}

ListRows CellRows(const CellFigures& figures, int language)
{
    RowMaker rows(language, false);
    rows.Add({"18 Point Support", "18 Punkt Support"}, FormatText("%6.1f", figures.eighteen));
    rows.Add({"9 Point Support", "9 Punkt Support"}, FormatText("%6.1f", figures.nine));
    rows.Add({"3 Point Support at 70% of radius", "3 Punkt Support bei 70% des Radius"},
             FormatText("%6.1f", figures.three_at_70));
    rows.Add({"3 Point Support at the edge", "3 Punkt Support am Rand"},
             FormatText("%6.1f", figures.three_at_edge));
    return rows.Take();
}

std::string CellVerdict(const CellFigures& figures, int language)
{
    for (const CellSentence& sentence : kSentences) {
        if (figures.*sentence.figure >= kGoodEnough) {
            return sentence.text.In(language);
        }
    }
    return kNotEnough.In(language);
}
