#pragma once

#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"
#include "model/rows/NumberField.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// The page Center of Gravity: nine components along the tube, each with a weight (g) and a balance position
/// (mm from the rear end of the tube). The record is the only store; reading it fixes unset values.

struct BalanceComponent {
    Bilingual label;
    NumberField weight; ///< formats as the component's dialog opens
    NumberField balance;
};

inline constexpr std::size_t kBalanceCount = 9;

/// In the order of the list, from its top. The first is the mirror, which follows from other pages and cannot
/// be edited.
extern const BalanceComponent kBalanceComponents[kBalanceCount];

inline constexpr ListColumn kBalanceColumns[] = {
    {{"Designation", "Bezeichnung"}, 222},
    {{"Weight", "Gewicht"}, 90, true},
    {{"Center of Gravity", "Schwerpunkt"}, 90, true},
    {{"Center of Gravity (relative)", "Schwerpunkt (relativ)"}, 222}};

/// The nine rows of four cells. `mirror_back_position` is the document's: the mirror's rear face, mm from the
/// rear end of the tube, at the last recalculation.
ListRows BalanceRows(COrrevaData& record, double mirror_back_position, int language);

double TotalWeight(COrrevaData& record);     ///< g
double CenterOfGravity(COrrevaData& record); ///< mm from the rear end of the tube

/// German in both languages.
std::string TotalWeightText(COrrevaData& record);
std::string CenterOfGravityText(COrrevaData& record, int language);

/// The message that answers a wish to edit `row` of the list (-1: none is selected); null if it can be done.
const Bilingual* BalanceEditMessage(std::int32_t row);

/// The texts of a component's dialog, `row` from 1 to 8.
struct ComponentTexts {
    std::string weight;
    std::string balance;
};
ComponentTexts ReadComponent(COrrevaData& record, std::size_t row);
/// Stores the weight, then the balance position.
void StoreComponent(COrrevaData& record, std::size_t row, const ComponentTexts& texts);
/// The dialog's reset buttons: the record takes its default at once. The weight comes with one decimal.
std::string ResetComponentWeight(COrrevaData& record, std::size_t row);
std::string ResetComponentBalance(COrrevaData& record, std::size_t row);

/// The question before SuggestBalance.
extern const Bilingual kSuggestQuestion;

/// Unsets weight and balance of all components but the mirror, so that the next reading computes them.
void SuggestBalance(COrrevaData& record);
