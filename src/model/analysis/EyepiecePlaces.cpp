#include "model/analysis/EyepiecePlaces.h"

#include "lib/files/FileQueries.h"
#include "lib/platform/DataFolders.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"

#include <algorithm>
#include <filesystem>

std::vector<std::string> EyepiecePlaces()
{
    std::vector<std::string> places{"eyepiece.dat"};
    for (const std::string& folder : DataFolders()) {
        places.push_back(folder + "/orreva/eyepiece.dat");
    }
    return places;
}

std::string FindEyepieces(const std::vector<std::string>& places)
{
    const auto found =
        std::ranges::find_if(places, [](const std::string& place) { return FileExists(place.c_str()) != 0; });
    return found == places.end() ? places.front() : *found;
}

std::string InstalledEyepieces(const std::vector<std::string>& places)
{
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        if (!LoadEyepieces(place->c_str()).entries.empty()) {
            return *place;
        }
    }
    return "";
}

std::string EyepiecePlacesText(const std::vector<std::string>& places, int language)
{
    constexpr Bilingual kText{"There are no eyepieces. The first of these lists counts that is there:",
                              "Es gibt keine Okulare. Es zählt die erste dieser Listen, die da ist:"_cp1252};
    std::string text = kText.In(language);
    for (const std::string& place : places) {
        std::error_code error;
        text += '\n' + Cp1252FromUtf8(std::filesystem::absolute(place, error).string());
    }
    return text;
}
