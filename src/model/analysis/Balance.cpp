#include "model/analysis/Balance.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"

#include <span>

const BalanceComponent kBalanceComponents[kBalanceCount] = {
    {{"Mirror", "Spiegel"},
     {&COrrevaData::GetWeightMirror, &COrrevaData::SetWeightMirror, "%0.0f"},
     {&COrrevaData::GetBalanceMirror, &COrrevaData::SetBalanceMirror, "%0.0f"}},
    {{"Mirror Cell", "Spiegelzelle"},
     {&COrrevaData::GetWeightCell, &COrrevaData::SetWeightCell, "%0.0f"},
     {&COrrevaData::GetBalanceCell, &COrrevaData::SetBalanceCell, "%0.0f"}},
    {{"Mirror Box", "Spiegelkasten"},
     {&COrrevaData::GetWeightBox, &COrrevaData::SetWeightBox, "%0.0f"},
     {&COrrevaData::GetBalanceBox, &COrrevaData::SetBalanceBox, "%0.0f"}},
    {{"Tube Center Section, Trusses", "Tubus Mittelteil, Trusses"},
     {&COrrevaData::GetWeightTruss, &COrrevaData::SetWeightTruss, "%0.0f"},
     {&COrrevaData::GetBalanceTruss, &COrrevaData::SetBalanceTruss, "%0.0f"}},
    {{"Upper Cage", "Hut, Gegenlichtblende, Taukappe"},
     {&COrrevaData::GetWeightHat, &COrrevaData::SetWeightHat, "%0.0f"},
     {&COrrevaData::GetBalanceHat, &COrrevaData::SetBalanceHat, "%0.0f"}},
    {{"Secondary, Secondary Holder", "Fangspiegel, Fangspiegelhalter, Spinne"},
     {&COrrevaData::GetWeightSecondary, &COrrevaData::SetWeightSecondary, "%0.0f"},
     {&COrrevaData::GetBalanceSecondary, &COrrevaData::SetBalanceSecondary, "%0.0f"}},
    {{"Focuser, Okular", "Focuser, Okular"},
     {&COrrevaData::GetWeightEyepiece, &COrrevaData::SetWeightEyepiece, "%0.0f"},
     {&COrrevaData::GetBalanceEyepiece, &COrrevaData::SetBalanceEyepiece, "%0.0f"}},
    {{"Finder, Finder Holder", "Finder, Finderhalterung"},
     {&COrrevaData::GetWeightFinder, &COrrevaData::SetWeightFinder, "%0.0f"},
     {&COrrevaData::GetBalanceFinder, &COrrevaData::SetBalanceFinder, "%0.0f"}},
    {{"Miscellaneous", "Sonstiges"},
     {&COrrevaData::GetWeightMisc, &COrrevaData::SetWeightMisc, "%0.0f"},
     {&COrrevaData::GetBalanceMisc, &COrrevaData::SetBalanceMisc, "%0.0f"}},
};

namespace {

constexpr std::size_t kMirror = 0;

constexpr Bilingual kSelectFirst{
    "Please select a Component first.",
    "Selektieren Sie bitte zunächst, welche Komponente Sie bearbeiten möchten."_cp1252};
constexpr Bilingual kMirrorIsComputed{
    "Weight and Center of Gravity of the primary are calculated from the data you provided in the Sheets "
    "'Primary' and 'Tube'.",
    "Das Gewicht und der Schwerpunkt des Spiegels berechnet sich aus den Daten, die Sie beim Hauptspiegel "
    "und "
    "Tubus angegeben haben.\n"
    "Ändern Sie die Daten bitte im Reiter 'Hauptspiegel' bzw, 'Tubus'."_cp1252};

double WeightOf(COrrevaData& record, const BalanceComponent& component)
{
    return (record.*component.weight.get)();
}

double BalanceOf(COrrevaData& record, const BalanceComponent& component)
{
    return (record.*component.balance.get)();
}

} // namespace

const Bilingual kSuggestQuestion{
    "This overwrites the existing Data.\n\nProceed?",
    "Dieser Vorgang überschreibt die vorhandenen Daten dieser Seite.\n\nFortfahren?"_cp1252};

ListRows BalanceRows(COrrevaData& record, double mirror_back_position, int language)
{
    ListRows rows;
    for (std::size_t i = kBalanceCount; i-- > 0;) {
        const BalanceComponent& component = kBalanceComponents[i];
        const double weight = WeightOf(record, component);
        const double balance = BalanceOf(record, component);
        // German in both languages.
        const std::string relative = i == kMirror ? FormatText("%0.1f mm hinter der Spiegeloberfläche"_cp1252,
                                                               balance - mirror_back_position)
                                                  : FormatText("%0.1f mm vor dem Tubusende", balance);
        rows.push_back({component.label.In(language), FormatText("%0.3f kg", weight / 1000),
                        FormatText("%0.1f mm", balance), relative});
    }
    return rows;
}

double TotalWeight(COrrevaData& record)
{
    double total = 0;
    for (const BalanceComponent& component : kBalanceComponents) {
        total += WeightOf(record, component);
    }
    return total;
}

double CenterOfGravity(COrrevaData& record)
{
    double moment = 0;
    for (const BalanceComponent& component : kBalanceComponents) {
        const double balance = BalanceOf(record, component);
        const double weight = WeightOf(record, component);
        moment += balance * weight;
    }
    return moment / TotalWeight(record);
}

std::string TotalWeightText(COrrevaData& record)
{
    return FormatText("Das Gesammtgewicht des Teleskopes beträgt ca. %0.1f kg."_cp1252,
                      TotalWeight(record) / 1000);
}

std::string CenterOfGravityText(COrrevaData& record, int language)
{
    static constexpr Bilingual kText{
        "The Center of Gravity is located %0.1f mm in Front of the Tube Rear End",
        "Der Schwerpunkt des Gesammtsystems liegt %0.1f mm vor dem spiegelseitigen Tubusende"};
    return FormatText(kText.In(language), CenterOfGravity(record));
}

const Bilingual* BalanceEditMessage(std::int32_t row)
{
    if (row < 0) {
        return &kSelectFirst;
    }
    return row == kMirror ? &kMirrorIsComputed : nullptr;
}

ComponentTexts ReadComponent(COrrevaData& record, std::size_t row)
{
    const BalanceComponent& component = kBalanceComponents[row];
    ComponentTexts texts;
    texts.weight = ShowNumber(record, component.weight);
    texts.balance = ShowNumber(record, component.balance);
    return texts;
}

void StoreComponent(COrrevaData& record, std::size_t row, const ComponentTexts& texts)
{
    StoreNumber(record, kBalanceComponents[row].weight, texts.weight);
    StoreNumber(record, kBalanceComponents[row].balance, texts.balance);
}

std::string ResetComponentWeight(COrrevaData& record, std::size_t row)
{
    NumberField field = kBalanceComponents[row].weight;
    field.format = "%0.1f"; // unlike the format that the dialog opens with
    return ResetNumber(record, field);
}

std::string ResetComponentBalance(COrrevaData& record, std::size_t row)
{
    return ResetNumber(record, kBalanceComponents[row].balance);
}

void SuggestBalance(COrrevaData& record)
{
    for (const BalanceComponent& component : std::span(kBalanceComponents).subspan(kMirror + 1)) {
        (record.*component.weight.set)(HUGE_VAL);
        (record.*component.balance.set)(HUGE_VAL);
    }
}
