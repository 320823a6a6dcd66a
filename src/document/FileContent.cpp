#include "document/FileContent.h"

#include "document/OldArchive.h"
#include "document/OldFormat.h"
#include "lib/files/FileBytes.h"

namespace {

bool IsOldFormat(std::string_view bytes)
{
    std::uint32_t version = 0;
    return OldArchive(bytes).Read(version) && version == kLastOldVersion;
}

} // namespace

bool LooksLikeDesign(std::string_view bytes)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    bytes = bytes.substr(0, kFormatBytes);
    if (IsOldFormat(bytes)) {
        return false;
    }
    if (bytes.find("<telescope") != std::string_view::npos) {
        return true;
    }
    if (bytes.starts_with(kByteOrderMark)) {
        bytes.remove_prefix(kByteOrderMark.size());
    }
    bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n\v\f"), bytes.size()));
    return bytes.starts_with("<?xml");
}

bool LooksLikeDesignFile(const char* path)
{
    const auto bytes = ReadFileBytes(path, kFormatBytes);
    return bytes && LooksLikeDesign(*bytes);
}
