#include "model/tools/InchConversion.h"

#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

std::string MmToInchText(const std::string& mm) { return FormatText("%f", TextToDouble(mm.c_str()) / kInch); }

std::string InchToMmText(const std::string& inch)
{
    return FormatText("%f", TextToDouble(inch.c_str()) * kInch);
}
