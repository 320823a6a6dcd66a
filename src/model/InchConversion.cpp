#include "model/InchConversion.h"

#include "lib/FormatText.h"
#include "lib/Numbers.h"

std::string MmToInchText(const std::string& mm) { return FormatText("%f", TextToDouble(mm.c_str()) / kInch); }

std::string InchToMmText(const std::string& inch)
{
    return FormatText("%f", TextToDouble(inch.c_str()) * kInch);
}
