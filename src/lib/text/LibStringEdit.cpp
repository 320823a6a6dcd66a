#include "lib/text/CharTools.h"
#include "lib/text/LibString.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

LibString& LibString::operator=(char c)
{
    Format("%c", c);
    return *this;
}

LibString& LibString::operator=(int nValue)
{
    Format("%d", nValue);
    return *this;
}

LibString& LibString::operator=(unsigned nValue) { return *this = static_cast<int>(nValue); }

LibString& LibString::operator=(long nValue)
{
    Format("%ld", static_cast<long>(static_cast<std::int32_t>(nValue)));
    return *this;
}

LibString& LibString::operator=(unsigned long nValue) { return *this = static_cast<long>(nValue); }

const char* LibString::Append(const char* psz)
{
    if (psz == nullptr) {
        return nullptr;
    }
    const std::size_t added = std::strlen(psz);
    if (added == 0) {
        return m_psz;
    }
    // The block grows from its start, so blanks trimmed at the left come back. `psz` may lie in the old
    // block.
    const std::size_t length = std::strlen(m_pszBlock);
    char* const block = static_cast<char*>(std::malloc(length + added + 1));
    if (block != nullptr) {
        std::memcpy(block, m_pszBlock, length);
        std::memcpy(block + length, psz, added + 1);
    }
    std::free(m_pszBlock);
    m_pszBlock = block;
    m_psz = block;
    return m_psz;
}

LibString& LibString::operator+=(const char* psz)
{
    Append(psz);
    return *this;
}

LibString& LibString::operator+=(const LibString& other) { return *this += other.m_psz; }

LibString& LibString::operator+=(char c)
{
    const char text[2] = {c, 0};
    return *this += text;
}

LibString operator+(const LibString& a, const LibString& b) { return a + b.m_psz; }

LibString operator+(const LibString& a, const char* b)
{
    LibString sum(a);
    sum += b;
    return sum;
}

LibString operator+(const char* a, const LibString& b) { return LibString(a) + b.m_psz; }

LibString operator+(const LibString& a, char b)
{
    LibString sum(a);
    sum += b;
    return sum;
}

LibString operator+(char a, const LibString& b) { return LibString(a) + b.m_psz; }

void LibString::SetAt(long i, char c)
{
    if (i >= 0 && static_cast<std::size_t>(i) < Length()) {
        m_psz[i] = c;
    }
}

LibString LibString::Left(long n) const { return Mid(0, n); }

LibString LibString::Right(long n) const
{
    const long length = static_cast<long>(Length());
    return Mid(length - std::clamp(n, 0L, length));
}

LibString LibString::Mid(long nFrom, long n) const
{
    const long length = static_cast<long>(Length());
    const long from = std::clamp(nFrom, 0L, length);
    LibString part(m_psz + from);
    part.m_psz[std::clamp(n, 0L, length - from)] = 0;
    return part;
}

LibString LibString::Mid(long nFrom) const { return Mid(nFrom, static_cast<long>(Length())); }

char LibString::LastChar() const { return At(static_cast<long>(Length()) - 1); }

bool LibString::RemoveLastChar(char c)
{
    const std::size_t length = Length();
    if (length == 0 || m_psz[length - 1] != c) {
        return false;
    }
    m_psz[length - 1] = 0;
    return true;
}

void LibString::TrimAll()
{
    TrimAllRight();
    TrimAllLeft();
}

void LibString::TrimAllLeft() { m_psz += SkipAll(m_psz) - m_psz; }
void LibString::TrimAllRight() { TrimRightAll(m_psz); }

void LibString::MakeLower()
{
    for (char* p = m_psz; *p != 0; ++p) {
        *p = ToPlainLower(*p);
    }
}

void LibString::MakeUpper()
{
    for (char* p = m_psz; *p != 0; ++p) {
        *p = *p >= 'a' && *p <= 'z' ? static_cast<char>(*p - 'a' + 'A') : *p;
    }
}

bool LibString::CutAt(char c)
{
    char* const hit = c != 0 ? std::strchr(m_psz, c) : nullptr;
    if (hit == nullptr) {
        return false;
    }
    *hit = 0;
    return true;
}

LibString LibString::TailAfter(char c)
{
    const long at = Find(c);
    if (at < 0) {
        return LibString();
    }
    LibString tail = Mid(at + 1);
    m_psz[at] = 0;
    return tail;
}

bool LibString::MakeSafeName()
{
    bool changed = false;
    for (char* p = m_psz; *p != 0; ++p) {
        if (static_cast<signed char>(*p) < 33 || *p == '@' || *p == '=' || *p == '#') {
            *p = '_';
            changed = true;
        }
    }
    return changed;
}

void LibString::SetFromIP(std::uint32_t nValue)
{
    const auto byte = [nValue](int i) { return static_cast<long>((nValue >> (8 * i)) & 0xFF); };
    Format("%ld.%ld.%ld.%ld", byte(0), byte(1), byte(2), byte(3));
}

std::int32_t LibString::Hash(const char* psz)
{
    std::uint32_t h = 0;
    for (const char* p = psz; p != nullptr && *p != 0; ++p) {
        h = h * 33 + static_cast<std::uint32_t>(static_cast<signed char>(*p));
    }
    return static_cast<std::int32_t>(h);
}

bool LibString::RemoveLastSlash() { return RemoveLastChar('\\'); }

void LibString::ParentDirectory()
{
    RemoveLastSlash();
    if (const long slash = ReverseFind('\\'); slash >= 0) {
        m_psz[slash] = 0;
    }
}

const char* LibString::FileNamePart() const { return m_psz + ReverseFind('\\') + 1; }
