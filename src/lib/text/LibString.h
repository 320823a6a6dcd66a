#pragma once

#include <compare>
#include <cstdarg>
#include <cstddef>
#include <cstdint>

/// The program's heap string: bytes of code page 1252, closed by a zero byte.
///
/// Two pointers: the text as every reader sees it, and the block that is freed and reallocated. Trimming at
/// the left moves only the text pointer; whatever grows the string later reallocates from the block and so
/// brings the trimmed blanks back. Kept: it makes a trim free of cost.
class LibString {
public:
    LibString();
    LibString(const char* psz);
    LibString(const LibString& other);
    explicit LibString(char c);
    ~LibString();

    LibString& operator=(const char* psz);
    LibString& operator=(const LibString& other);
    LibString& operator=(char c);
    /// A whole number through "%d" or "%ld", as a 32-bit integer with sign: 4294967295 gives "-1".
    LibString& operator=(int nValue);
    LibString& operator=(unsigned nValue);
    LibString& operator=(long nValue);
    LibString& operator=(unsigned long nValue);

    /// Frees the old block and copies `psz`, which may lie within the old text; a null pointer is the empty
    /// text.
    void Assign(const char* psz);
    void Empty();
    /// Releases the block. The string must be assigned before it is read again.
    void Free();

    const char* GetText() const { return m_psz; }
    operator const char*() const { return m_psz; }
    std::size_t Length() const;

    /// The byte at `i`; 0 outside 0 to length - 1.
    char At(long i) const;
    char operator[](long i) const { return At(i); }
    char operator[](int i) const { return At(i); }
    /// Writes the byte at `i`; outside the text nothing happens.
    void SetAt(long i, char c);

    /// Removes blanks and tabs at both ends, or at one.
    void TrimBlanks();
    void TrimBlanksLeft();
    void TrimBlanksRight();
    /// Removes blanks, tabs and line ends at both ends, or at one.
    void TrimAll();
    void TrimAllLeft();
    void TrimAllRight();

    /// Formatted assignment. The size is counted in advance from the format; a letter that is no conversion
    /// gives "Fehlerhaftes Zeichen im Format-String: " and that letter. A result that does not fit the count
    /// ends the program with code 0. The arguments may lie in this string's own text.
    void Format(const char* pszFormat, ...) __attribute__((format(printf, 2, 3)));
    /// The same with the arguments as a list, which is used up.
    void FormatList(const char* pszFormat, std::va_list args) __attribute__((format(printf, 2, 0)));

    /// Moves the text before the first `cSeparator` (or all of it) into `token`, untrimmed; this string
    /// becomes what stands behind the separator, without leading blanks and tabs.
    void NextToken(LibString& token, char cSeparator);

    /// Appends, and gives the text; an empty text changes nothing (blanks trimmed at the left stay away), a
    /// null pointer gives null.
    const char* Append(const char* psz);
    LibString& operator+=(const char* psz);
    LibString& operator+=(const LibString& other);
    LibString& operator+=(char c);
    friend LibString operator+(const LibString& a, const LibString& b);
    friend LibString operator+(const LibString& a, const char* b);
    friend LibString operator+(const char* a, const LibString& b);
    friend LibString operator+(const LibString& a, char b);
    friend LibString operator+(char a, const LibString& b);

    /// Below 0, 0 or above 0 by the order of the bytes; a null pointer is the empty text.
    int Compare(const char* psz) const;
    /// The same with `A` to `Z` taken as small letters.
    int CompareNoCase(const char* psz) const;
    /// The order of the C locale, which is that of the bytes.
    int Collate(const char* psz) const { return Compare(psz); }
    friend bool operator==(const LibString& a, const LibString& b) { return a.Compare(b.m_psz) == 0; }
    friend bool operator==(const LibString& a, const char* b) { return a.Compare(b) == 0; }
    friend std::strong_ordering operator<=>(const LibString& a, const LibString& b)
    {
        return a.Compare(b.m_psz) <=> 0;
    }
    friend std::strong_ordering operator<=>(const LibString& a, const char* b) { return a.Compare(b) <=> 0; }

    /// Parts of the text; what lies outside it is left out.
    LibString Left(long n) const;
    LibString Right(long n) const;
    LibString Mid(long nFrom, long n) const;
    LibString Mid(long nFrom) const;

    /// The last character, 0 for the empty text.
    char LastChar() const;
    /// True if the last character was `c` and is gone.
    bool RemoveLastChar(char c);

    /// Plain `A` to `Z` and `a` to `z` only.
    void MakeLower();
    void MakeUpper();

    /// Ends the text at the first `c`; true if there was one.
    bool CutAt(char c);
    /// Ends the text at the first `c` and gives what followed; without one, the empty text.
    LibString TailAfter(char c);

    /// Where something first stands at `nFrom` or behind it, -1 for nowhere. A negative `nFrom` counts from
    /// the end: -1 is the last character. Without `bMatchCase`, `A` to `Z` count as small letters.
    long Find(char c, long nFrom = 0, bool bMatchCase = true) const;
    long Find(const char* psz, long nFrom = 0, bool bMatchCase = true) const;
    /// Where something last stands at `nFrom` or before it.
    long ReverseFind(char c, long nFrom = -1, bool bMatchCase = true) const;
    long ReverseFind(const char* psz, long nFrom = -1, bool bMatchCase = true) const;
    long CountChar(char c) const;

    /// The text as a list of entries split by `cSeparator`, read as NextToken reads it.
    void AddListEntry(const char* psz, char cSeparator);
    /// Rebuilds the list without the entries equal to `psz`; true if there was one. Kept: whatever the
    /// separator, the entries are joined by commas then.
    bool RemoveListEntry(const char* psz, char cSeparator);
    bool HasListEntry(const char* psz, char cSeparator) const;

    /// Makes `_` of control bytes, blanks, `@`, `=`, `#` and all bytes from 128 up; true if any was there.
    bool MakeSafeName();
    /// An address in dotted form, the lowest byte of `nValue` first.
    void SetFromIP(std::uint32_t nValue);
    /// h * 33 + signed byte over the text, in 32 bits; 0 for a null pointer.
    static std::int32_t Hash(const char* psz);

    /// True if the last character was `\` and is gone.
    bool RemoveLastSlash();
    /// Removes a last `\` and then cuts at the last one left.
    void ParentDirectory();
    /// Pointer behind the last `\`, or to the text if there is none.
    const char* FileNamePart() const;

private:
    void CopyFrom(const char* psz, std::size_t nLength);

    char* m_psz = nullptr;
    char* m_pszBlock = nullptr;
};
