#include "document/PrintName.h"

#include "lib/text/CodePage.h"
#include "model/record/OrrevaData.h"

#include <algorithm>
#include <filesystem>

std::string DesignName(const COrrevaData& record)
{
    std::string title = record.GetTitle().GetText();
    if (title.find_first_not_of(' ') != std::string::npos) {
        return title;
    }
    std::string file = std::filesystem::path(record.file_path.GetText()).filename().string();
    constexpr std::string_view kEnding = ".orreva.xml";
    if (file.ends_with(kEnding)) {
        file.resize(file.size() - kEnding.size());
    }
    return Cp1252FromUtf8(file);
}

std::string PrintName(const COrrevaData& record, std::string_view page)
{
    const std::string design = DesignName(record);
    return design.empty() ? std::string(page) : design + " - " + std::string(page);
}

std::string ProposedFile(std::string_view name, std::string_view ending)
{
    static constexpr std::string_view kSpecial = "/\\:*?\"<>|";
    constexpr std::size_t kLongest = 120;
    std::string file(name.substr(0, kLongest));
    std::ranges::replace_if(
        file,
        [](char one) {
            return static_cast<unsigned char>(one) < ' ' || kSpecial.find(one) != std::string_view::npos;
        },
        '-');
    const std::size_t first = file.find_first_not_of(" .");
    file.erase(0, first == std::string::npos ? file.size() : first); // no hidden file
    return (file.empty() ? std::string("Orreva") : file) + std::string(ending);
}
