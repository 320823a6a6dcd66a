#pragma once

#include <cstddef>

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

    /// Removes blanks and tabs at both ends.
    void TrimBlanks();

    /// Formatted assignment. The size is counted in advance from the format; a letter that is no conversion
    /// gives "Fehlerhaftes Zeichen im Format-String: " and that letter. A result that does not fit the count
    /// ends the program with code 0. The arguments may not lie in this string's own text.
    void Format(const char* pszFormat, ...) __attribute__((format(printf, 2, 3)));

    /// Moves the text before the first `cSeparator` (or all of it) into `token`, untrimmed; this string
    /// becomes what stands behind the separator, without leading blanks and tabs.
    void NextToken(LibString& token, char cSeparator);

private:
    void CopyFrom(const char* psz, std::size_t nLength);

    char* m_psz = nullptr;
    char* m_pszBlock = nullptr;
};
