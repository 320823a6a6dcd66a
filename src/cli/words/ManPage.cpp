#include "cli/words/ManPage.h"

#include "lib/text/CodePage.h"

namespace {

constexpr Bilingual kManualName{"User Commands", "Benutzerbefehle"};
constexpr Bilingual kNameTitle{"NAME", "NAME"};
constexpr Bilingual kSynopsisTitle{"SYNOPSIS", "ÜBERSICHT"_cp1252};
constexpr Bilingual kDescriptionTitle{"DESCRIPTION", "BESCHREIBUNG"};
constexpr Bilingual kVerbsTitle{"VERBS", "BEFEHLE"};
constexpr Bilingual kOptionsTitle{"OPTIONS", "OPTIONEN"};
constexpr Bilingual kSeeAlsoTitle{"SEE ALSO", "SIEHE AUCH"};
constexpr Bilingual kSeeManual{"The manual opens by F1 in the workbench.",
                               "Das Handbuch öffnet sich mit F1 in der Werkbank."_cp1252};

/// Plain text as roff reads it: no character of it is a request or an escape, and a hyphen is the one of the
/// keyboard.
std::string Roff(std::string_view text)
{
    std::string roff = !text.empty() && (text.front() == '.' || text.front() == '\'') ? "\\&" : "";
    for (const char character : text) {
        switch (character) {
        case '\\':
            roff += "\\e";
            break;
        case '-':
            roff += "\\-";
            break;
        case '~':
            roff += "\\(ti";
            break;
        default:
            roff += character;
        }
    }
    return roff;
}

void AppendSection(std::string& page, const Bilingual& heading, int language)
{
    page += std::string(".SH ") + heading.In(language) + '\n';
}

void AppendRoffParagraphs(std::string& page, std::string_view text)
{
    std::string_view between;
    for (const std::string_view paragraph : ParagraphsOf(text)) {
        page += std::string(between) + Roff(paragraph) + '\n';
        between = ".PP\n";
    }
}

/// A word in bold with what stands behind it, and its text indented below.
void AppendItem(std::string& page, std::string_view word, std::string_view behind, std::string_view text)
{
    page += ".TP\n\\fB" + Roff(word) + "\\fR" + (behind.empty() ? "" : ' ' + Roff(behind)) + '\n';
    AppendRoffParagraphs(page, text);
}

} // namespace

std::string ManPage(const ProgramWords& program, std::string_view version, int language)
{
    std::string page = ".TH \"" + Roff(program.name) + "\" 1 \"\" \"Orreva " + std::string(version) +
                       "\" \"" + kManualName.In(language) + "\"\n";
    AppendSection(page, kNameTitle, language);
    page += Roff(program.name) + " \\- " + Roff(program.purpose.In(language)) + '\n';
    AppendSection(page, kSynopsisTitle, language);
    page += "\\fB" + Roff(program.name) + "\\fR " + Roff(program.synopsis) + '\n';
    AppendSection(page, kDescriptionTitle, language);
    AppendRoffParagraphs(page, program.description.In(language));
    if (!program.verbs.empty()) {
        AppendSection(page, kVerbsTitle, language);
    }
    for (const VerbWords& verb : program.verbs) {
        AppendItem(page, verb.name, verb.synopsis, verb.text.In(language));
    }
    AppendSection(page, kOptionsTitle, language);
    for (const OptionWords& option : program.options) {
        AppendItem(page, option.name, option.value, OptionSentence(option, language));
    }
    for (const Passage& passage : program.passages) {
        AppendSection(page, passage.heading, language);
        AppendRoffParagraphs(page, passage.text.In(language));
    }
    AppendSection(page, kSeeAlsoTitle, language);
    page += "\\fB" + Roff(program.other) + "\\fR(1)\n.PP\n" + Roff(kSeeManual.In(language)) + '\n';
    return Utf8FromCp1252(page);
}
