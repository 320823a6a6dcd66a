#pragma once

#include "model/record/OrrevaData.h"

#include <string>

/// A number of the record as a field of a page shows it.
struct NumberField {
    double (COrrevaData::*get)();
    void (COrrevaData::*set)(double);
    const char* format;
};

/// The record's value as the field's text; an unset value is computed and stays.
std::string ShowNumber(COrrevaData& record, const NumberField& field);

/// Stores the unset mark and shows the default that the record computes anew: what a reset button does.
std::string ResetNumber(COrrevaData& record, const NumberField& field);

/// Stores what was typed; a text that is no number is 0.
void StoreNumber(COrrevaData& record, const NumberField& field, const std::string& text);
