#include "lib/platform/LibSup.h"

#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>

namespace {

bool IsGiven(const char* psz) { return psz != nullptr && *psz != 0; }

void Set(LibString* target, const std::string& text)
{
    if (target != nullptr) {
        *target = text.c_str();
    }
}

/// Cuts `text` at `at` and gives what stood behind that character.
std::string CutOff(std::string& text, std::size_t at)
{
    std::string tail = text.substr(at + 1);
    text.resize(at);
    return tail;
}

} // namespace

void PathBuild(LibString& target, const char* pszDrive, const char* pszDirectory, const char* pszName,
               const char* pszExtension)
{
    LibString path;
    if (IsGiven(pszDrive)) {
        path += pszDrive;
        path += ':';
    }
    if (IsGiven(pszDirectory)) {
        path += pszDirectory;
        path += '\\';
    }
    path += pszName;
    if (IsGiven(pszExtension)) {
        path += '.';
        path += pszExtension;
    }
    target = path;
}

bool PathSplit(const char* pszPath, LibString* drive, LibString* directory, LibString* name,
               LibString* extension)
{
    constexpr std::size_t kLongestPath = 2047;
    // A copy before the targets are emptied: the path may lie in one of them.
    std::string rest(IsGiven(pszPath) ? pszPath : "");
    for (LibString* const target : {drive, directory, name, extension}) {
        Set(target, "");
    }
    if (rest.empty() || rest.size() > kLongestPath) {
        return false;
    }
    if (rest.back() == '\\') {
        rest.pop_back();
    }
    if (rest.ends_with(':')) {
        rest.pop_back();
        Set(drive, rest);
        return true;
    }
    if (const std::size_t at = rest.find_last_of(".\\:"); at != std::string::npos && rest[at] == '.') {
        Set(extension, CutOff(rest, at));
    }
    const std::size_t at = rest.find_last_of("\\:");
    if (at == std::string::npos) {
        Set(name, rest);
        return true;
    }
    const bool behindDrive = rest[at] == ':';
    Set(name, CutOff(rest, at));
    if (behindDrive) {
        Set(drive, rest);
        return true;
    }
    std::string folder = rest;
    if (const std::size_t colon = rest.rfind(':'); colon != std::string::npos) {
        folder = CutOff(rest, colon);
        Set(drive, rest);
    }
    Set(directory, folder.starts_with('\\') ? folder.substr(1) : folder);
    return true;
}

const char* PathExtension(const char* psz)
{
    const char* const dot = std::strrchr(psz, '.');
    return dot != nullptr ? dot + 1 : psz + std::strlen(psz);
}

void PathStripExtension(LibString* text)
{
    const std::string_view path(text->GetText());
    const std::size_t dot = path.find_last_of(".\\/:");
    const bool inName = dot != std::string_view::npos && dot > 0 && path[dot] == '.';
    if (inName && std::strchr("\\/:", path[dot - 1]) == nullptr) {
        text->SetAt(static_cast<long>(dot), 0);
    }
}

bool PathHasExtension(const char* psz, const char* pszExtension)
{
    return LibString(PathExtension(psz)).CompareNoCase(pszExtension) == 0;
}

LibString* PathAddSlash(LibString* text)
{
    if (text != nullptr && text->LastChar() != '\\') {
        *text += '\\';
    }
    return text;
}

int PathStripName(LibString* text)
{
    if (text == nullptr) {
        return 1;
    }
    if (const long slash = text->ReverseFind('/'); slash >= 0) {
        text->SetAt(slash + 1, 0);
    }
    return 0;
}
