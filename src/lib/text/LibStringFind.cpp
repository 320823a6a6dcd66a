#include "lib/text/CharTools.h"
#include "lib/text/LibString.h"

#include <algorithm>
#include <cstring>

namespace {

char Plain(char c, bool bMatchCase) { return bMatchCase ? c : ToPlainLower(c); }

/// Sum of the first `n` bytes, in 32 bits.
class RollingSum {
public:
    RollingSum(const char* p, long n, bool bMatchCase) : m_bMatchCase(bMatchCase)
    {
        for (long i = 0; i < n; ++i) {
            Add(p[i]);
        }
    }
    void Add(char c) { m_nSum += static_cast<unsigned char>(Plain(c, m_bMatchCase)); }
    void Subtract(char c) { m_nSum -= static_cast<unsigned char>(Plain(c, m_bMatchCase)); }
    bool operator==(const RollingSum& other) const { return m_nSum == other.m_nSum; }

private:
    bool m_bMatchCase;
    std::uint32_t m_nSum = 0;
};

bool SameBytes(const char* a, const char* b, long n, bool bMatchCase)
{
    for (long i = 0; i < n; ++i) {
        if (Plain(a[i], bMatchCase) != Plain(b[i], bMatchCase)) {
            return false;
        }
    }
    return true;
}

int CompareBytes(const char* a, const char* b, bool bMatchCase)
{
    b = b != nullptr ? b : "";
    for (;; ++a, ++b) {
        const auto one = static_cast<unsigned char>(Plain(*a, bMatchCase));
        const auto other = static_cast<unsigned char>(Plain(*b, bMatchCase));
        if (one != other || one == 0) {
            return one - other;
        }
    }
}

} // namespace

int LibString::Compare(const char* psz) const { return CompareBytes(m_psz, psz, true); }
int LibString::CompareNoCase(const char* psz) const { return CompareBytes(m_psz, psz, false); }

long LibString::Find(char c, long nFrom, bool bMatchCase) const
{
    const char text[2] = {c, 0};
    return c != 0 ? Find(text, nFrom, bMatchCase) : -1;
}

long LibString::Find(const char* psz, long nFrom, bool bMatchCase) const
{
    const long length = static_cast<long>(Length());
    const long from = std::max(nFrom < 0 ? length + nFrom : nFrom, 0L);
    const long n = psz != nullptr ? static_cast<long>(std::strlen(psz)) : 0;
    if (psz == nullptr || from > length || n > length - from) {
        return -1;
    }
    // Only where the sums agree are the texts compared.
    const RollingSum wanted(psz, n, bMatchCase);
    RollingSum window(m_psz + from, n, bMatchCase);
    for (long i = from;; ++i) {
        if (window == wanted && SameBytes(m_psz + i, psz, n, bMatchCase)) {
            return i;
        }
        if (i + n >= length) {
            return -1;
        }
        window.Add(m_psz[i + n]);
        window.Subtract(m_psz[i]);
    }
}

long LibString::ReverseFind(char c, long nFrom, bool bMatchCase) const
{
    const char text[2] = {c, 0};
    return c != 0 ? ReverseFind(text, nFrom, bMatchCase) : -1;
}

long LibString::ReverseFind(const char* psz, long nFrom, bool bMatchCase) const
{
    const long length = static_cast<long>(Length());
    const long n = psz != nullptr ? static_cast<long>(std::strlen(psz)) : 0;
    const long from = std::min(nFrom < 0 ? length + nFrom : nFrom, length - n);
    if (psz == nullptr || from < 0) {
        return -1;
    }
    const RollingSum wanted(psz, n, bMatchCase);
    RollingSum window(m_psz + from, n, bMatchCase);
    for (long i = from;; --i) {
        if (window == wanted && SameBytes(m_psz + i, psz, n, bMatchCase)) {
            return i;
        }
        if (i == 0) {
            return -1;
        }
        window.Add(m_psz[i - 1]);
        window.Subtract(m_psz[i + n - 1]);
    }
}

long LibString::CountChar(char c) const { return static_cast<long>(std::count(m_psz, m_psz + Length(), c)); }
