#include "model/rows/NumberField.h"

#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

std::string ShowNumber(COrrevaData& record, const NumberField& field)
{
    return FormatText(field.format, (record.*field.get)());
}

std::string ResetNumber(COrrevaData& record, const NumberField& field)
{
    (record.*field.set)(HUGE_VAL);
    record.TellStored(field.set);
    return ShowNumber(record, field);
}

void StoreNumber(COrrevaData& record, const NumberField& field, const std::string& text)
{
    (record.*field.set)(TextToDouble(text.c_str()));
    record.TellStored(field.set);
}
