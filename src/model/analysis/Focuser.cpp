#include "model/analysis/Focuser.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"

const FocuserField kFocuserFields[kFocuserNumbers] = {
    {{"Inner Diameter (mm)", "Innendurchmesser (mm)"},
     {&COrrevaData::GetFocuserDiameter, &COrrevaData::SetFocuserDiameter, "%0.1f"}},
    {{"Hieght of retracted Focuser (mm)", "Höhe des (eingefahrenen) Focusers (mm)"_cp1252},
     {&COrrevaData::GetFocuserHeight, &COrrevaData::SetFocuserHeight, "%0.1f"}},
    {{"Height of Focal Plane above retracted Focuser\n"
      "(additional height for eyepieces and correctors, mm)",
      "Höhe der Brennebene über dem (eingefahrenen) Focuser\n"
      "(zusätzliche Höhe für Okulare und Korrektoren, mm)"_cp1252},
     {&COrrevaData::GetFocuserSpare, &COrrevaData::SetFocuserSpare, "%0.1f"}},
    {{"Travel (mm)", "Verstellweg des Innenrohres (Travel)"},
     {&COrrevaData::GetOazTravel, &COrrevaData::SetOazTravel, "%0.1f"}},
    {{"Pipe Length", "Länge des Innenrohres"_cp1252},
     {&COrrevaData::GetOazLength, &COrrevaData::SetOazLength, "%0.1f"}},
    {{"Travel (mm)", "Verstellweg (Travel)"},
     {&COrrevaData::GetOschTravel, &COrrevaData::SetOschTravel, "%0.1f"}},
};

const Bilingual kFocuserTypes[3] = {
    {"Focuser", "Okularauszug"},
    {"Sliding Focuser", "Okularschlitten"},
    {"Combination Focuser / Sliding Focuser", "Kombination aus Okularauszug und Okularschlittern"},
};

std::string FocuserTypeText(std::int32_t type, int language)
{
    if (type < 0 || type > 2) {
        return FormatText("%d", type);
    }
    return kFocuserTypes[type].In(language);
}

bool IsFocuserFieldEnabled(FocuserNumber field, std::int32_t type)
{
    switch (field) {
    case kFocuserOazTravel:
    case kFocuserOazLength:
        return type != 1;
    case kFocuserOschTravel:
        return type != 0;
    default:
        return true;
    }
}

FocuserTexts ReadFocuser(COrrevaData& record)
{
    FocuserTexts texts;
    texts.type = record.GetFocuserType();
    for (std::size_t i = 0; i < kFocuserNumbers; ++i) {
        texts.numbers[i] = ShowNumber(record, kFocuserFields[i].number);
    }
    return texts;
}

void StoreFocuser(COrrevaData& record, const FocuserTexts& texts)
{
    const auto store = [&](FocuserNumber i) {
        StoreNumber(record, kFocuserFields[i].number, texts.numbers[i]);
    };
    store(kFocuserHeight);
    store(kFocuserDiameter);
    store(kFocuserSpare);
    record.SetFocuserType(texts.type);
    store(kFocuserOazTravel);
    store(kFocuserOazLength);
    store(kFocuserOschTravel);
}
