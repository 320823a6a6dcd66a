#pragma once

#include "lib/text/Language.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The words of both programs, in one table: the command line is read by it, and help, man pages and
/// completion are made of it.

/// What the companion may do; a set of them says where an option belongs.
enum Verb : std::uint32_t {
    kReport = 1,
    kRays = 2,
    kDraw = 4,
    kSaveVerb = 8,
    kImport = 16,
    kExport = 32,
    kCalc = 64,
    kValues = 128,
    kSweep = 256,
    kCompare = 512,
    kCheck = 1024,
    kFigureVerb = 2048,
    kRescue = 4096,
    kSheetsVerb = 8192,
};

struct VerbWords {
    std::string_view name;
    Verb verb;
    std::string_view synopsis; ///< what stands behind the name
    std::string_view choices;  ///< of its first word, parted by |; empty for any
    Bilingual text;            ///< what it does, a sentence
};

struct OptionWords {
    std::string_view name;
    std::string_view value;   ///< what its value is called; empty for an option without one
    std::uint32_t verbs;      ///< that take it
    Bilingual text;           ///< what it is, a sentence
    std::string_view choices; ///< of its value, parted by |; empty for any
};

/// A part of help and man page that is neither verb nor option.
struct Passage {
    Bilingual heading;
    Bilingual text; ///< paragraphs, parted by an empty line
};

struct ProgramWords {
    std::string_view name;
    Bilingual purpose; ///< half a line, without a full stop
    std::string_view synopsis;
    Bilingual description; ///< paragraphs
    std::span<const VerbWords> verbs;
    std::span<const OptionWords> options;
    std::span<const Passage> passages;
    std::string_view other; ///< the program that goes with it
};

/// The window program `orreva`.
const ProgramWords& WorkbenchWords();
/// Its companion `orreva-cli`.
const ProgramWords& CompanionWords();

/// Null for a word that is none.
const VerbWords* FindVerbWords(std::string_view name);
const OptionWords* FindOptionWords(std::string_view name);

/// "a|b|c" as a, b and c.
std::vector<std::string_view> ChoicesOf(std::string_view choices);
/// The paragraphs of a text.
std::vector<std::string_view> ParagraphsOf(std::string_view text);
/// The option's text with the choices that the name of its value does not tell; code page 1252.
std::string OptionSentence(const OptionWords& option, int language);
