#include "lib/config/LibConfig.h"

#include <algorithm>
#include <iterator>

CConfigEntry::CConfigEntry(const char* pszName, const char* pszValue) : m_szName(pszName), m_szValue(pszValue)
{
    m_szName.TrimBlanksLeft();
}

bool CConfigTable::IsUsed(int i) const { return i >= 0 && i < kMostEntries && m_apEntries[i] != nullptr; }

bool CConfigTable::Add(const char* pszName, const char* pszValue, bool bReplace)
{
    if (pszName == nullptr || *pszName == 0 || pszValue == nullptr) {
        return false;
    }
    if (const int i = Find(pszName); i >= 0) {
        return bReplace && SetValue(i, pszValue) != 0;
    }
    const auto slot = std::find(std::begin(m_apEntries), std::end(m_apEntries), nullptr);
    if (slot == std::end(m_apEntries)) {
        return false;
    }
    *slot = std::make_unique<CConfigEntry>(pszName, pszValue);
    return true;
}

int CConfigTable::Find(const char* pszName) const
{
    for (int i = 0; IsUsed(i); ++i) {
        if (m_apEntries[i]->m_szName == pszName) {
            return i;
        }
    }
    return -1;
}

const char* CConfigTable::GetName(int i) const
{
    return IsUsed(i) ? m_apEntries[i]->m_szName.GetText() : nullptr;
}

const char* CConfigTable::GetValue(int i) const
{
    return IsUsed(i) ? m_apEntries[i]->m_szValue.GetText() : nullptr;
}

int CConfigTable::SetValue(int i, const char* pszValue)
{
    if (!IsUsed(i)) {
        return 0;
    }
    m_apEntries[i]->m_szValue = pszValue;
    return 1;
}

const char* CConfigTable::GetValue(const char* pszName) const { return GetValue(Find(pszName)); }

int CConfigTable::SetValue(const char* pszName, const char* pszValue)
{
    return SetValue(Find(pszName), pszValue);
}

int CConfigTable::Count() const
{
    return kMostEntries -
           static_cast<int>(std::count(std::begin(m_apEntries), std::end(m_apEntries), nullptr));
}

void CConfigTable::Clear() { std::fill(std::begin(m_apEntries), std::end(m_apEntries), nullptr); }

bool CConfigTable::AddLine(const char* psz)
{
    LibString name(psz);
    name.TrimBlanksLeft();
    const LibString value = name.TailAfter('=');
    return Add(name, value, true);
}

int CConfigTable::AddList(const char* psz, char cSeparator)
{
    if (psz == nullptr) {
        return kConfigNullText;
    }
    LibString rest(psz);
    while (rest.Length() > 0) {
        LibString line;
        rest.NextToken(line, cSeparator);
        line.TrimBlanks();
        AddLine(line);
    }
    return kConfigOk;
}

void CConfigTable::Unquote(int i)
{
    if (!IsUsed(i)) {
        return;
    }
    LibString& value = m_apEntries[i]->m_szValue;
    if (value[0] == '"') {
        value = value.Mid(1);
        value.CutAt('"');
    }
}

void CConfigTable::UnquoteAll()
{
    for (int i = 0; IsUsed(i); ++i) {
        Unquote(i);
    }
}

void CConfigTable::Dump(std::FILE* file) const
{
    for (int i = 0; IsUsed(i); ++i) {
        std::fprintf(file, "%s=%s<br>\n", GetName(i), GetValue(i));
    }
}

void CConfigTable::DumpMarked(std::FILE* file, const char* pszSelected) const
{
    const int selected = pszSelected != nullptr ? Find(pszSelected) : -1;
    for (int i = 0; IsUsed(i); ++i) {
        std::fprintf(file, "%s=%s:%d<br>\n", GetName(i), GetValue(i), i == selected ? 1 : 0);
    }
}
