#include "cli/words/ManPage.h"

#include "lib/text/CodePage.h"

namespace {

constexpr Bilingual kManual{"User Commands", "Benutzerbefehle"};
constexpr Bilingual kName{"NAME", "NAME"};
constexpr Bilingual kSynopsis{"SYNOPSIS", "ÜBERSICHT"_cp1252};
constexpr Bilingual kDescription{"DESCRIPTION", "BESCHREIBUNG"};
constexpr Bilingual kVerbs{"VERBS", "BEFEHLE"};
constexpr Bilingual kOptions{"OPTIONS", "OPTIONEN"};
constexpr Bilingual kSeeAlso{"SEE ALSO", "SIEHE AUCH"};
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

void AppendParagraphs(std::string& page, std::string_view text)
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
    AppendParagraphs(page, text);
}

} // namespace

std::string ManPage(const ProgramWords& program, std::string_view version, int language)
{
    std::string page = ".TH \"" + Roff(program.name) + "\" 1 \"\" \"Orreva " + std::string(version) +
                       "\" \"" + kManual.In(language) + "\"\n";
    AppendSection(page, kName, language);
    page += Roff(program.name) + " \\- " + Roff(program.purpose.In(language)) + '\n';
    AppendSection(page, kSynopsis, language);
    page += "\\fB" + Roff(program.name) + "\\fR " + Roff(program.synopsis) + '\n';
    AppendSection(page, kDescription, language);
    AppendParagraphs(page, program.description.In(language));
    if (!program.verbs.empty()) {
        AppendSection(page, kVerbs, language);
    }
    for (const VerbWords& verb : program.verbs) {
        AppendItem(page, verb.name, verb.synopsis, verb.text.In(language));
    }
    AppendSection(page, kOptions, language);
    for (const OptionWords& option : program.options) {
        AppendItem(page, option.name, option.value, OptionSentence(option, language));
    }
    for (const Passage& passage : program.passages) {
        AppendSection(page, passage.heading, language);
        AppendParagraphs(page, passage.text.In(language));
    }
    AppendSection(page, kSeeAlso, language);
    page += "\\fB" + Roff(program.other) + "\\fR(1)\n.PP\n" + Roff(kSeeManual.In(language)) + '\n';
    return Utf8FromCp1252(page);
}
