#include "lib/config/LibConfig.h"

#include "lib/config/ConfigAssert.h"
#include "lib/config/ConfigLine.h"
#include "lib/files/TextLines.h"
#include "lib/text/CharTools.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>

using std::strlen;

namespace {

constexpr int kLineSize = 2048;
constexpr std::size_t kListSize = 1024;
constexpr std::size_t kTypedSize = 256;
constexpr std::size_t kStringSize = 2047;

/// A line of at most `nSize` - 1 characters, without its line end, which a name could match as an underscore.
/// The rest of a longer line is passed over.
bool ReadLine(char* target, int nSize, std::FILE* file)
{
    if (ReadTextLine(target, nSize, file) == nullptr) {
        return false;
    }
    char szRest[256];
    bool ended = std::strchr(target, '\n') != nullptr;
    while (!ended && ReadTextLine(szRest, sizeof szRest, file) != nullptr) {
        ended = std::strchr(szRest, '\n') != nullptr;
    }
    CutLineEnd(target);
    return true;
}

/// Appends a name and `=` to a list; false if it would reach the size less 10.
bool AddName(char* pszList, std::size_t nSize, const char* pszName)
{
    const std::size_t length = strlen(pszList);
    const std::size_t added = strlen(pszName);
    if (length + added + 1 + 10 >= nSize) {
        return false;
    }
    std::memcpy(pszList + length, pszName, added);
    std::strcpy(pszList + length + added, "=");
    return true;
}

void CopyFitting(char* pszTarget, const char* psz, std::size_t nSize)
{
    if (nSize > 0) {
        const std::size_t n = std::min(strlen(psz), nSize - 1);
        std::memcpy(pszTarget, psz, n);
        pszTarget[n] = 0;
    }
}

} // namespace

CConfigFile::CConfigFile(const char* psz)
{
    CONFIG_ASSERT(psz);
    CONFIG_ASSERT(strlen(psz) < sizeof(m_szFilename));
    std::strcpy(m_szFilename, psz);
}

CConfigFile::~CConfigFile() { CONFIG_ASSERT(m_pf == NULL); }

int CConfigFile::Open()
{
    if (m_pf != nullptr) {
        return kConfigAlreadyOpen;
    }
    std::error_code error;
    if (!std::filesystem::is_regular_file(m_szFilename, error)) { // a pipe would be waited for
        return kConfigNotOpened;
    }
    m_pf = std::fopen(m_szFilename, "rb");
    return m_pf != nullptr ? kConfigOk : kConfigNotOpened;
}

int CConfigFile::Close()
{
    if (m_pf == nullptr) {
        return kConfigNotOpen;
    }
    std::fclose(m_pf);
    m_pf = nullptr;
    return kConfigOk;
}

int CConfigFile::NextSection(char* pszTarget, std::size_t nSize)
{
    if (m_pf == nullptr) {
        return kConfigNotOpened;
    }
    char szLine[kLineSize];
    while (ReadLine(szLine, sizeof szLine, m_pf)) {
        char* const end = std::strchr(szLine, ']');
        if (!IsSectionLine(szLine) || end == nullptr) {
            continue;
        }
        *end = 0;
        const char* const name = SkipBlanks(szLine) + 1;
        CopyFitting(pszTarget, name, nSize);
        return strlen(name) < nSize ? kConfigOk : kConfigValueTooLong;
    }
    return kConfigNoSection;
}

int CConfigFile::GetSections(char* pszTarget, std::size_t nSize)
{
    CopyFitting(pszTarget, "", nSize);
    int code = Open();
    if (code != kConfigOk) {
        return code;
    }
    char szName[kLineSize];
    while (code == kConfigOk && NextSection(szName, sizeof szName) == kConfigOk) {
        code = AddName(pszTarget, nSize, szName) ? kConfigOk : kConfigListTooLong;
    }
    Close();
    return code;
}

int CConfigFile::GetSections(LibString& target)
{
    char szList[kListSize];
    const int code = GetSections(szList, sizeof szList);
    target = szList;
    return code;
}

int CConfigFile::ReadKeys(const char* pszSection, char* pszTarget, std::size_t nSize)
{
    int code = FindSection(pszSection);
    char szLine[kLineSize];
    while (code == kConfigOk && ReadLine(szLine, sizeof szLine, m_pf) && !IsSectionLine(szLine)) {
        char* const sign = std::strchr(szLine, '=');
        if (*szLine == '#' || sign == nullptr) {
            continue;
        }
        *sign = 0;
        const char* const name = SkipBlanks(TrimRight(szLine));
        code = AddName(pszTarget, nSize, name) ? kConfigOk : kConfigListTooLong;
    }
    return code;
}

int CConfigFile::GetKeys(const char* pszSection, char* pszTarget, std::size_t nSize)
{
    CopyFitting(pszTarget, "", nSize);
    int code = Open();
    if (code == kConfigOk) {
        code = ReadKeys(pszSection, pszTarget, nSize);
        Close();
    }
    return code;
}

int CConfigFile::GetKeys(const char* pszSection, LibString& target)
{
    char szList[kListSize];
    const int code = GetKeys(pszSection, szList, sizeof szList);
    target = szList;
    return code;
}

int CConfigFile::FindSection(const char* pszSection)
{
    if (pszSection == nullptr) {
        return kConfigOk;
    }
    char szLine[kLineSize];
    while (ReadLine(szLine, sizeof szLine, m_pf)) {
        if (IsSectionHeader(szLine, pszSection)) {
            return kConfigOk;
        }
    }
    return kConfigNoSection;
}

char* CConfigFile::MatchLine(char* pszLine, const char* pszName) const { return MatchKey(pszLine, pszName); }

char* CPlainConfigFile::MatchLine(char* pszLine, const char* pszName) const
{
    return MatchPlainKey(pszLine, pszName);
}

int CConfigFile::FindKey(const char* pszName, LibString& value)
{
    char szLine[kLongestKeyLine + 1];
    while (ReadLine(szLine, sizeof szLine, m_pf)) {
        if (IsSectionLine(szLine)) {
            return kConfigNoKeyInSection;
        }
        if (const char* const found = MatchLine(szLine, pszName)) {
            value = found;
            return kConfigOk;
        }
    }
    return kConfigNoKey;
}

int CConfigFile::GetRaw(const char* pszSection, const char* pszName, char* dest, std::size_t len)
{
    CONFIG_ASSERT(len < 2048);
    CONFIG_ASSERT(dest);
    CopyFitting(dest, "", len);
    if (pszName == nullptr) {
        return kConfigNullText;
    }
    int code = Open();
    if (code != kConfigOk) {
        return code;
    }
    LibString value;
    code = FindSection(pszSection);
    if (code == kConfigOk) {
        code = FindKey(pszName, value);
    }
    Close();
    if (code != kConfigOk) {
        return code;
    }
    if (value.Length() >= len) {
        return kConfigValueTooLong;
    }
    if (value[0] == '"') {
        value = value.Mid(1);
        if (!value.RemoveLastChar('"')) {
            return kConfigNoClosingQuote;
        }
    }
    CopyFitting(dest, value, len);
    return kConfigOk;
}

int CConfigFile::GetText(const char* pszSection, const char* pszName, LibString& text)
{
    char szValue[kTypedSize];
    const int code = GetRaw(pszSection, pszName, szValue, sizeof szValue);
    text = szValue;
    return code;
}

int CConfigFile::GetChar(const char* pszSection, const char* pszName, char& cTarget, char cDefault)
{
    LibString text;
    const int code = GetText(pszSection, pszName, text);
    cTarget = code == kConfigOk ? text[0] : cDefault;
    return code;
}

int CConfigFile::GetInt(const char* pszSection, const char* pszName, int& nTarget, int nDefault)
{
    LibString text;
    const int code = GetText(pszSection, pszName, text);
    nTarget = code == kConfigOk ? IntegerValue(text) : nDefault;
    return code;
}

int CConfigFile::GetLong(const char* pszSection, const char* pszName, std::int32_t& nTarget,
                         std::int32_t nDefault)
{
    return GetInt(pszSection, pszName, nTarget, nDefault);
}

int CConfigFile::GetULong(const char* pszSection, const char* pszName, std::uint32_t& nTarget,
                          std::uint32_t nDefault)
{
    std::int32_t nValue = 0;
    const int code = GetLong(pszSection, pszName, nValue, 0);
    nTarget = code == kConfigOk ? static_cast<std::uint32_t>(nValue) : nDefault;
    return code;
}

int CConfigFile::GetDouble(const char* pszSection, const char* pszName, double& dTarget, double dDefault)
{
    LibString text;
    const int code = GetText(pszSection, pszName, text);
    if (code != kConfigOk) {
        dTarget = dDefault;
    } else if (text == kNoValueText) {
        dTarget = HUGE_VAL;
    } else {
        dTarget = text == kMinusInfinity ? -HUGE_VAL : DecimalValue(text);
    }
    return code;
}

int CConfigFile::GetBool(const char* pszSection, const char* pszName, bool& bTarget, bool bDefault)
{
    LibString text;
    const int code = GetText(pszSection, pszName, text);
    const bool bValue = text == "true" || text == "yes" || IntegerValue(text) != 0;
    bTarget = code == kConfigOk ? bValue : bDefault;
    return code;
}

int CConfigFile::GetString(const char* pszSection, const char* pszName, char* pszTarget,
                           const char* pszDefault, std::size_t nSize)
{
    if (GetRaw(pszSection, pszName, pszTarget, nSize) != kConfigOk) {
        CopyFitting(pszTarget, pszDefault != nullptr ? pszDefault : "", nSize);
    }
    return kConfigOk;
}

int CConfigFile::GetString(const char* pszSection, const char* pszName, LibString& target,
                           const char* pszDefault)
{
    char szValue[kStringSize];
    GetString(pszSection, pszName, szValue, pszDefault, sizeof szValue);
    target = szValue;
    return kConfigOk;
}
