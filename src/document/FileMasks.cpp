#include "document/FileMasks.h"

#include "lib/files/FileQueries.h"
#include "lib/text/CharTools.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace {

using Path = std::filesystem::path;

bool NamesAFile(const Path& name) { return !name.empty() && name != "." && name != ".."; }

bool EndsAlike(std::string_view text, std::string_view ending)
{
    return text.size() >= ending.size() && std::ranges::equal(text.substr(text.size() - ending.size()),
                                                              ending, {}, ToPlainLower, ToPlainLower);
}

/// A point at the end of a name is the one of the ending.
std::string Joined(const std::string& path, const std::string& ending)
{
    return path + (path.ends_with('.') ? ending.substr(1) : ending);
}

} // namespace

std::string FilterEnding(const FileDialog& dialog)
{
    std::string_view rest(dialog.filter);
    rest.remove_prefix(std::min(rest.find("|*."), rest.size()));
    rest.remove_prefix(std::min<std::size_t>(3, rest.size()));
    return std::string(rest.substr(0, rest.find('|')));
}

std::string WithEnding(const FileDialog& dialog, const std::string& path, bool firstChoice)
{
    const Path name = Path(path).filename();
    if (!NamesAFile(name)) {
        return path;
    }
    const std::string ending = "." + FilterEnding(dialog);
    if (!dialog.saving) {
        const std::string full = Joined(path, ending);
        return FileExists(path.c_str()) == 0 && FileExists(full.c_str()) != 0 ? full : path;
    }
    const bool hidden = name.native().starts_with('.');
    const bool complete = firstChoice ? EndsAlike(name.native(), ending) : hidden || name.has_extension();
    return complete ? path : Joined(path, ending);
}
