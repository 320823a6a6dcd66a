#pragma once

#include "lib/text/Language.h"
#include "model/rows/NumberField.h"

#include <array>
#include <cstdint>
#include <string>

/// The page Focuser: its measures, their labels and which of them a kind of focuser uses.

enum FocuserNumber {
    kFocuserDiameter,
    kFocuserHeight,
    kFocuserSpare,
    kFocuserOazTravel,
    kFocuserOazLength,
    kFocuserOschTravel,
    kFocuserNumbers
};

struct FocuserField {
    Bilingual label; ///< may run over two lines
    NumberField number;
};

/// The six fields in the order of FocuserNumber, which is that of the page.
extern const FocuserField kFocuserFields[kFocuserNumbers];

/// Labels of the three kinds of focuser: drawtube, sliding, both.
extern const Bilingual kFocuserTypes[3];

/// The label of a kind; for any other number that number.
std::string FocuserTypeText(std::int32_t type, int language);

/// Whether the page lets the user type the field for this kind of focuser. A number that is no kind leaves
/// the three fields of travel and length as they are: enabled.
bool IsFocuserFieldEnabled(FocuserNumber field, std::int32_t type);

/// The page's input: the kind and the six texts.
struct FocuserTexts {
    std::int32_t type = 0;
    std::array<std::string, kFocuserNumbers> numbers;
};

FocuserTexts ReadFocuser(COrrevaData& record);

/// Stores height, diameter, spare height, kind, travel, length and sliding travel, in this order: the setters
/// clear one another's dependants.
void StoreFocuser(COrrevaData& record, const FocuserTexts& texts);
