#include "document/FileMasks.h"

#include "lib/FileQueries.h"

#include <filesystem>
#include <string_view>

namespace {

std::string TakePart(std::string_view& rest)
{
    const std::string_view part = rest.substr(0, rest.find('|'));
    rest.remove_prefix(std::min(rest.size(), part.size() + 1));
    return std::string(part);
}

bool NamesAFileWithoutEnding(const std::filesystem::path& path)
{
    const std::filesystem::path name = path.filename();
    return !name.empty() && name != "." && name != ".." && !name.has_extension();
}

} // namespace

std::vector<FileFilter> SplitFilter(const char* filter)
{
    std::vector<FileFilter> choices;
    for (std::string_view rest(filter); !rest.empty() && rest.front() != '|';) {
        std::string text = TakePart(rest);
        choices.push_back({std::move(text), TakePart(rest)});
    }
    return choices;
}

std::string EndingOf(const FileDialog& dialog)
{
    const auto choices = SplitFilter(dialog.filter);
    return choices.empty() ? std::string() : choices.front().pattern.substr(1); // without the asterisk
}

std::string WithEnding(const FileDialog& dialog, const std::string& path)
{
    const bool opens_it = !dialog.saving && FileExists(path.c_str()) != 0;
    return opens_it || !NamesAFileWithoutEnding(path) ? path : path + EndingOf(dialog);
}
