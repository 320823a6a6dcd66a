#pragma once

inline constexpr int kEnglish = 0;
inline constexpr int kGerman = 1;

/// The language of texts that code writes, set once at the start.
extern int g_nLanguage;

/// A text that code writes, kept twice, as bytes of code page 1252.
struct Bilingual {
    const char* english;
    const char* german;

    constexpr const char* In(int language) const { return language == kGerman ? german : english; }
};
