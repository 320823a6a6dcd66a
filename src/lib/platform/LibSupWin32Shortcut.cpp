#include "lib/platform/LibSupWin32.h"

#include "lib/files/FileBytes.h"
#include "lib/platform/LibSup.h"
#include "lib/text/CodePage.h"

#include <string>
#include <string_view>

namespace {

/// Text as the value of a desktop entry, whose strings escape a backslash.
std::string EntryText(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        escaped += c == '\\' ? "\\\\" : std::string(1, c);
    }
    return escaped;
}

/// A path as a command: in quotes, with what a quoted argument and a field code mean escaped.
std::string QuotedCommand(std::string_view path)
{
    std::string quoted = "\"";
    for (const char c : path) {
        if (c == '"' || c == '`' || c == '$' || c == '\\') {
            quoted += '\\';
        }
        quoted += c == '%' ? "%%" : std::string(1, c);
    }
    return quoted + "\"";
}

/// A value is one line.
bool IsOneLine(const char* psz)
{
    for (; *psz != 0; ++psz) {
        if (static_cast<unsigned char>(*psz) < 32) {
            return false;
        }
    }
    return true;
}

int Fail(const char* psz)
{
    ShowError(psz);
    return 1;
}

} // namespace

int CreateShortcut(const char* pszTarget, const char* pszLink, const char* pszDescription)
{
    constexpr std::size_t kLongestLink = 260;
    if (*pszTarget == 0 || !IsOneLine(pszTarget)) {
        return Fail("SetPath failed!");
    }
    if (!IsOneLine(pszDescription)) {
        return Fail("SetDescription failed!");
    }
    const std::string description = EntryText(Utf8FromCp1252(pszDescription));
    const std::string name = description.empty() ? EntryText(pszTarget) : description;
    const std::string entry = "[Desktop Entry]\nType=Application\nName=" + name + "\nComment=" + description +
                              "\nExec=" + EntryText(QuotedCommand(pszTarget)) + "\n";
    if (std::strlen(pszLink) > kLongestLink || !ReplaceFile(pszLink, entry)) {
        LibString text;
        text.Format("Error saving %s to %s!", Cp1252FromUtf8(pszTarget).c_str(),
                    Cp1252FromUtf8(pszLink).c_str());
        return Fail(text);
    }
    return 0;
}
