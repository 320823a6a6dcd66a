#include "lib/text/LibString.h"

#include "lib/text/Assertion.h"
#include "lib/text/CharTools.h"
#include "lib/text/FormatSize.h"
#include "lib/text/LogSink.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

LibString::LibString() { CopyFrom("", 0); }

LibString::LibString(const char* psz) { CopyFrom(psz, psz != nullptr ? std::strlen(psz) : 0); }

LibString::LibString(const LibString& other) : LibString(other.m_psz) {}

LibString::LibString(char c) { CopyFrom(&c, c != 0 ? 1 : 0); }

LibString::~LibString() { Free(); }

LibString& LibString::operator=(const char* psz)
{
    Assign(psz);
    return *this;
}

LibString& LibString::operator=(const LibString& other)
{
    if (this != &other) {
        Assign(other.m_psz);
    }
    return *this;
}

void LibString::CopyFrom(const char* psz, std::size_t nLength)
{
    m_pszBlock = static_cast<char*>(std::malloc(nLength + 1));
    m_psz = m_pszBlock;
    if (m_psz == nullptr) {
        return;
    }
    if (nLength != 0) {
        std::memcpy(m_psz, psz, nLength);
    }
    m_psz[nLength] = 0;
}

void LibString::Assign(const char* psz)
{
    char* const old = m_pszBlock;
    CopyFrom(psz, psz != nullptr ? std::strlen(psz) : 0);
    std::free(old);
}

void LibString::Empty() { Assign(""); }

void LibString::Free()
{
    std::free(m_pszBlock);
    m_psz = nullptr;
    m_pszBlock = nullptr;
}

std::size_t LibString::Length() const { return std::strlen(m_psz); }

char LibString::At(long i) const
{
    return i < 0 || static_cast<std::size_t>(i) >= Length() ? '\0' : m_psz[i];
}

void LibString::TrimBlanks()
{
    TrimBlanksRight();
    TrimBlanksLeft();
}

void LibString::TrimBlanksLeft() { m_psz += SkipBlanks(m_psz) - m_psz; }
void LibString::TrimBlanksRight() { TrimRight(m_psz); }

void LibString::Format(const char* pszFormat, ...)
{
    std::va_list args;
    va_start(args, pszFormat);
    FormatList(pszFormat, args);
    va_end(args);
}

void LibString::FormatList(const char* pszFormat, std::va_list args)
{
    std::va_list counted;
    va_copy(counted, args);
    const FormatSize size = CountFormat(pszFormat, counted);
    va_end(counted);

    if (size.bad) {
        Assign((std::string("Fehlerhaftes Zeichen im Format-String: ") + size.badLetter).c_str());
        return;
    }

    char* const px = static_cast<char*>(std::malloc(size.bytes));
    LIB_ASSERT(px);
    const int thelen = std::vsnprintf(px, size.bytes, size.printable.c_str(), args);
    if (thelen < 0 || static_cast<std::size_t>(thelen) >= size.bytes) {
        SinkLine(pszFormat);
        char text[80];
        std::snprintf(text, sizeof text, "thelen < nMaxLen: %d <> %d", thelen, static_cast<int>(size.bytes));
        SinkLine(text);
        std::exit(0);
    }
    std::free(m_pszBlock);
    m_pszBlock = px;
    m_psz = px;
}

void LibString::NextToken(LibString& token, char cSeparator)
{
    if (*m_psz == 0) {
        token.Empty();
        return;
    }
    const std::string all(m_psz);
    const std::size_t end = all.find(cSeparator);
    token = all.substr(0, end).c_str();
    Assign(end == std::string::npos ? "" : SkipBlanks(all.c_str() + end + 1));
}
