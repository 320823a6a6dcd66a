#include "lib/platform/LibSup.h"

#include "lib/text/Assertion.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

void* CheckedMalloc(std::size_t nSize)
{
    void* const p = std::malloc(std::max<std::size_t>(nSize, 1));
    LIB_ASSERT(p);
    return p;
}

void* CheckedCalloc(std::size_t nCount, std::size_t nSize)
{
    const bool nothing = nCount == 0 || nSize == 0;
    void* const p = nothing ? std::calloc(1, 1) : std::calloc(nCount, nSize);
    LIB_ASSERT(p);
    return p;
}

void* CheckedRealloc(void* p, std::size_t nSize)
{
    if (p == nullptr) {
        return CheckedMalloc(nSize);
    }
    void* const grown = std::realloc(p, std::max<std::size_t>(nSize, 1));
    LIB_ASSERT(grown);
    return grown;
}

char* CheckedStrdup(const char* psz)
{
    LIB_ASSERT(psz);
    const std::size_t size = std::strlen(psz) + 1;
    return static_cast<char*>(std::memcpy(CheckedMalloc(size), psz, size));
}

void CheckedFree(void* p)
{
    LIB_ASSERT(p);
    std::free(p);
}
