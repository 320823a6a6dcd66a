#include "cli/words/HelpText.h"

#include "lib/text/CodePage.h"

#include <cstdlib>

namespace {

constexpr std::size_t kLineWidth = 80;
constexpr std::size_t kVerbIndent = 6;
constexpr std::size_t kOptionIndent = 26;

constexpr Bilingual kUsage{"Usage", "Aufruf"};
constexpr Bilingual kVerbsHeading{"Verbs", "Befehle"};
constexpr Bilingual kOptionsHeading{"Options", "Optionen"};

/// The first blank that does not stand within brackets: what they hold stays on one line.
std::size_t NextBreak(std::string_view text)
{
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        depth += text[i] == '[' ? 1 : text[i] == ']' ? -1 : 0;
        if (text[i] == ' ' && depth <= 0) {
            return i;
        }
    }
    return std::string_view::npos;
}

/// Appends the words of `text`, indented; the present line is `column` characters long.
void AppendWrapped(std::string& lines, std::string_view text, std::size_t indent, std::size_t column)
{
    bool first = true;
    while (!text.empty()) {
        const std::size_t end = NextBreak(text);
        const std::string_view word = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (word.empty()) {
            continue;
        }
        if (!first && column + 1 + word.size() > kLineWidth) {
            lines += '\n';
            column = 0;
            first = true;
        }
        if (column < indent) {
            lines.append(indent - column, ' ');
            column = indent;
        } else if (!first) {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += word.size();
        first = false;
    }
    lines += '\n';
}

void AppendParagraphs(std::string& lines, std::string_view text, std::size_t indent)
{
    for (const std::string_view paragraph : ParagraphsOf(text)) {
        AppendWrapped(lines, paragraph, indent, 0);
    }
}

void AppendHeading(std::string& lines, std::string_view heading)
{
    lines += '\n';
    lines += heading;
    lines += '\n';
}

void AppendVerb(std::string& lines, const ProgramWords& program, const VerbWords& verb, int language)
{
    std::string call = "  " + std::string(program.name) + ' ' + std::string(verb.name);
    const std::size_t column = call.size();
    lines += call + ' ';
    AppendWrapped(lines, verb.synopsis, column + 1, column + 1);
    AppendWrapped(lines, verb.text.In(language), kVerbIndent, 0);
}

void AppendOption(std::string& lines, const OptionWords& option, int language)
{
    std::string call = "  " + std::string(option.name);
    if (!option.value.empty()) {
        call += ' ' + std::string(option.value);
    }
    std::size_t column = call.size();
    lines += call;
    if (column + 2 > kOptionIndent) {
        lines += '\n';
        column = 0;
    }
    AppendWrapped(lines, OptionSentence(option, language), kOptionIndent, column);
}

} // namespace

std::string HelpText(const ProgramWords& program, int language)
{
    std::string lines = std::string(program.name) + ": " + program.purpose.In(language) + "\n\n";
    lines += std::string(kUsage.In(language)) + ": " + std::string(program.name) + ' ' +
             std::string(program.synopsis) + "\n\n";
    AppendParagraphs(lines, program.description.In(language), 0);
    if (!program.verbs.empty()) {
        AppendHeading(lines, kVerbsHeading.In(language));
    }
    for (const VerbWords& verb : program.verbs) {
        AppendVerb(lines, program, verb, language);
    }
    AppendHeading(lines, kOptionsHeading.In(language));
    for (const OptionWords& option : program.options) {
        AppendOption(lines, option, language);
    }
    for (const Passage& passage : program.passages) {
        AppendHeading(lines, passage.heading.In(language));
        AppendParagraphs(lines, passage.text.In(language), 2);
    }
    return Utf8FromCp1252(lines);
}

std::string VersionText(const ProgramWords& program, std::string_view version)
{
    return std::string(program.name) + ' ' + std::string(version) + '\n';
}

int TerminalLanguage()
{
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value != nullptr && *value != 0) {
            return std::string_view(value).starts_with("de") ? kGerman : kEnglish;
        }
    }
    return kEnglish;
}
