#include "model/rows/WantedField.h"

#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

std::string WantedFieldDegrees(COrrevaData& record, const std::string& millimetres)
{
    return FormatText("%0.4f", FieldAngle(record.GetFocalLength(), TextToDouble(millimetres.c_str())));
}

std::string WantedFieldMillimetres(COrrevaData& record, const std::string& degrees)
{
    return FormatText("%0.1f", FieldSize(record.GetFocalLength(), TextToDouble(degrees.c_str())));
}

void StoreMoonSizedField(COrrevaData& record)
{
    record.SetWanted100PercentFow(FieldSize(record.GetFocalLength(), 0.6));
}
