#include "lib/config/LibConfig.h"
#include "lib/config/SupportValues.h"
#include "lib/files/FileBytes.h"
#include "lib/platform/LibSup.h"
#include "lib/text/CharTools.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include <unistd.h>

// Any bytes as a configuration file: every reader gets through, and a value that is set is read back. The
// input begins with the section, the name and the value, each up to a line end; the rest is the file.

namespace {

const std::string& Path()
{
    // In memory, so that the flush of each rewriting costs nothing.
    static const std::string path = [] {
        const std::filesystem::path memory = "/dev/shm";
        const bool usable = access(memory.c_str(), W_OK) == 0;
        const std::filesystem::path folder = usable ? memory : std::filesystem::temp_directory_path();
        return (folder / ("orreva-config-fuzz." + std::to_string(getpid()))).string();
    }();
    return path;
}

void Require(bool held, const char* what)
{
    if (!held) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

std::string TakeLine(std::string_view& input)
{
    const std::size_t end = input.find('\n');
    std::string line(input.substr(0, end));
    input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    return line;
}

bool HasLineEnd(const std::string& text)
{
    return text.find_first_of(std::string_view("\r\n\0", 3)) != std::string::npos;
}

/// A name that a key line can carry.
bool IsKeyName(const std::string& name)
{
    return name.size() < 500 && !HasLineEnd(name) && !name.starts_with('[') &&
           (name.empty() || !IsBlank(name.front()));
}

bool IsSectionName(const std::string& name) { return name.size() < 500 && !HasLineEnd(name); }

/// What a value written as it stands is when it comes back: without comment, without blanks at its ends,
/// without a pair of quotes around it. Nothing for a quote that is not closed.
std::optional<std::string> Expected(const std::string& value)
{
    bool quoted = false;
    std::size_t end = 0;
    for (; end < value.size() && (quoted || value[end] != '#'); ++end) {
        quoted = quoted != (value[end] == '"');
    }
    std::string text = value.substr(0, end);
    const std::size_t first = text.find_first_not_of(" \t");
    text = first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
    if (!text.starts_with('"')) {
        return text;
    }
    return text.size() > 1 && text.back() == '"' ? std::optional(text.substr(1, text.size() - 2))
                                                 : std::nullopt;
}

void ReadAll(const char* section, const char* name)
{
    CConfigFile file(Path().c_str());
    LibString text;
    file.GetSections(text);
    while (text.Length() > 0) {
        LibString one;
        text.NextToken(one, '=');
        LibString keys;
        file.GetKeys(one, keys);
    }
    file.GetKeys(nullptr, text);
    char small[12];
    file.GetSections(small, sizeof small);
    file.GetKeys(section, small, sizeof small);
    file.GetString(section, name, small, "a long default", sizeof small);
    double d = 0;
    int n = 0;
    bool b = false;
    file.GetDouble(section, name, d, 1.0);
    file.GetInt(section, name, n, 1);
    file.GetBool(section, name, b, true);
}

void SetAndReadBack(const char* section, const char* name, const std::string& value)
{
    CConfigFile file(Path().c_str());
    Require(file.SetString(section, name, value.c_str()) == kConfigOk, "the value is not written");
    char dest[2047];
    const int code = file.GetRaw(section, name, dest, sizeof dest);
    const std::optional<std::string> expected = Expected(value);
    Require(code == (expected ? kConfigOk : kConfigNoClosingQuote), "the value is not found");
    Require(dest == expected.value_or(""), "another value is read back");

    const std::string once = ReadFileBytes(Path().c_str()).value_or("");
    Require(file.SetString(section, name, value.c_str()) == kConfigOk, "the value is not written again");
    Require(ReadFileBytes(Path().c_str()) == once, "writing the same value again changes the file");
}

/// What a configuration file holds behind its text, which a zero byte ends.
std::string Tail(const std::string& bytes)
{
    const std::size_t zero = bytes.find('\0');
    return zero != std::string::npos ? bytes.substr(zero) : "";
}

void RequireRefusal(const char* section, const char* name, const char* value)
{
    const std::string before = ReadFileBytes(Path().c_str()).value_or("");
    Require(CConfigFile(Path().c_str()).SetString(section, name, value) == kConfigValueTooLong,
            "a value of two lines is written");
    Require(ReadFileBytes(Path().c_str()) == before, "a refused value changes the file");
}

/// A support setting comes back as it was, whatever it holds.
void KeepSupportValue(const char* section, const char* name, const std::string& value)
{
    std::snprintf(g_szIniName, sizeof g_szIniName, "%s", Path().c_str());
    Require(SetSupportValue(section, name, value.c_str()) == kConfigOk, "the setting is not written");
    Require(GetSupportValue(section, name, "none") == value.substr(0, 127), "another setting is read back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool registered = std::atexit([] { std::remove(Path().c_str()); }) == 0;
    Require(registered, "no exit function");

    std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string section = TakeLine(input);
    const std::string name = TakeLine(input);
    const std::string value = TakeLine(input);
    Require(static_cast<bool>(ReplaceFile(Path().c_str(), input)), "the file is not written");

    const char* const given = section == "-" ? nullptr : section.c_str(); // before any section
    ReadAll(given, name.c_str());
    if (IsSectionName(section) && IsKeyName(name) && value.size() < 1000 && !HasLineEnd(value)) {
        SetAndReadBack(given, name.c_str(), value);
        KeepSupportValue(given, name.c_str(), value);
        RequireRefusal(given, name.c_str(), (value + "\rx").c_str());
        Require(Tail(ReadFileBytes(Path().c_str()).value_or("")) == Tail(std::string(input)),
                "what stands behind a zero byte is lost");
    }
    return 0;
}
