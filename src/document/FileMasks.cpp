#include "document/FileMasks.h"

#include "lib/files/FileQueries.h"

#include <filesystem>
#include <string_view>

namespace {

bool NamesAFileWithoutEnding(const std::filesystem::path& path)
{
    const std::filesystem::path name = path.filename();
    return !name.empty() && !name.native().starts_with('.') && !name.has_extension();
}

} // namespace

std::string FilterEnding(const FileDialog& dialog)
{
    std::string_view rest(dialog.filter);
    rest.remove_prefix(std::min(rest.find("|*."), rest.size()));
    rest.remove_prefix(std::min<std::size_t>(3, rest.size()));
    return std::string(rest.substr(0, rest.find('|')));
}

std::string WithEnding(const FileDialog& dialog, const std::string& path)
{
    const bool stays = !NamesAFileWithoutEnding(path) || (!dialog.saving && FileExists(path.c_str()) != 0);
    return stays ? path : path + "." + FilterEnding(dialog);
}
