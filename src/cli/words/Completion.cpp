#include "cli/words/Completion.h"

#include <algorithm>

namespace {

/// What the value of an option is, as far as a shell can complete it.
enum class Value { kNone, kChoice, kFile, kName, kKey, kAny };

struct NamedValue {
    std::string_view name;
    Value value;
};

constexpr NamedValue kValueNames[] = {{"", Value::kNone},
                                      {"FILE", Value::kFile},
                                      {"NAME", Value::kName},
                                      {"KEY=VALUE", Value::kKey},
                                      {"KEY=FROM:TO:COUNT", Value::kKey}};

Value ValueOf(const OptionWords& option)
{
    if (!option.choices.empty()) {
        return Value::kChoice;
    }
    const auto* const found = std::ranges::find(kValueNames, option.value, &NamedValue::name);
    return found == std::end(kValueNames) ? Value::kAny : found->value;
}

/// A command that prints the words which may stand there. The program itself tells the names of its numbers;
/// those with a slash are keys of the design file.
std::string NamesCommand(const ProgramWords& program, Value value)
{
    return std::string(program.name) + " values 2>/dev/null | cut -f1" +
           (value == Value::kKey ? " | grep / | sed 's/$/=/'" : "");
}

/// The name of the shell's function: the program's, with no hyphen in it.
std::string FunctionOf(const ProgramWords& program)
{
    std::string name = '_' + std::string(program.name);
    std::ranges::replace(name, '-', '_');
    return name;
}

std::string Spaced(std::string_view choices)
{
    std::string words(choices);
    std::ranges::replace(words, '|', ' ');
    return words;
}

/// The options that belong to `verbs`, parted by blanks.
std::string OptionsOf(const ProgramWords& program, std::uint32_t verbs)
{
    std::string names;
    for (const OptionWords& option : program.options) {
        if ((option.verbs & verbs) != 0) {
            names += (names.empty() ? "" : " ") + std::string(option.name);
        }
    }
    return names;
}

std::string BashWords(const std::string& words)
{
    return "mapfile -t COMPREPLY < <(compgen -W \"" + words + "\" -- \"$cur\")";
}

constexpr const char* kBashFiles =
    "compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- \"$cur\")";

std::string BashValue(const ProgramWords& program, const OptionWords& option)
{
    switch (const Value value = ValueOf(option)) {
    case Value::kChoice:
        return BashWords(Spaced(option.choices));
    case Value::kFile:
        return kBashFiles;
    case Value::kKey:
        return "compopt -o nospace 2>/dev/null; " + BashWords("$(" + NamesCommand(program, value) + ")");
    case Value::kName:
        return BashWords("$(" + NamesCommand(program, value) + ")");
    case Value::kNone:
    case Value::kAny:
        break;
    }
    return ":"; // nobody knows which number
}

/// What completes the value of the option before the cursor.
std::string BashValues(const ProgramWords& program)
{
    std::string lines;
    for (const OptionWords& option : program.options) {
        if (!option.value.empty()) {
            lines += "    " + std::string(option.name) + ")\n        " + BashValue(program, option) +
                     "\n        return ;;\n";
        }
    }
    return lines.empty() ? lines : "    case $prev in\n" + lines + "    esac\n";
}

/// Finds the verb, the first word that is neither an option nor the value of one, and sets the words that may
/// stand behind it.
std::string BashVerbs(const ProgramWords& program)
{
    std::string valued;
    for (const OptionWords& option : program.options) {
        if (!option.value.empty()) {
            valued += (valued.empty() ? "" : " | ") + std::string(option.name);
        }
    }
    std::string lines = "    for ((i = 1; i < COMP_CWORD; ++i)); do\n"
                        "        case ${COMP_WORDS[i]} in\n"
                        "        " +
                        valued +
                        ") ((++i)) ;;\n        -*) ;;\n        *)\n            verb=${COMP_WORDS[i]}\n"
                        "            break ;;\n        esac\n    done\n    case $verb in\n    '') words='";
    for (const VerbWords& verb : program.verbs) {
        lines += std::string(verb.name) + ' ';
    }
    lines += "--help --version' ;;\n";
    for (const VerbWords& verb : program.verbs) {
        lines += "    " + std::string(verb.name) + ")\n        words='" + OptionsOf(program, verb.verb) +
                 "'\n" +
                 (verb.choices.empty() ? ""
                                       : "        [[ ${COMP_WORDS[i]} == \"$prev\" ]] && words='" +
                                             Spaced(verb.choices) + "' && plain=1\n") +
                 "        ;;\n";
    }
    return lines + "    *) words='' ;;\n    esac\n    [[ -z $verb ]] && plain=1\n";
}

/// `text` within single quotes of a shell.
std::string Quoted(std::string_view text)
{
    std::string quoted = "'";
    for (const char character : text) {
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return quoted + '\'';
}

/// A text as zsh's _arguments takes it between its brackets.
std::string ZshText(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == '[' || character == ']' || character == ':' || character == '\\') {
            escaped += '\\';
        }
        escaped += character;
    }
    return escaped;
}

std::string ZshValue(const ProgramWords& program, const OptionWords& option)
{
    if (option.value.empty()) {
        return "";
    }
    const std::string name = ':' + ZshText(option.value) + ':';
    switch (const Value value = ValueOf(option)) {
    case Value::kChoice:
        return name + '(' + Spaced(option.choices) + ')';
    case Value::kFile:
        return name + "_files";
    case Value::kName:
    case Value::kKey:
        return name + "{compadd" + (value == Value::kKey ? " -S \"\"" : "") + " -- ${(f)\"$(" +
               NamesCommand(program, value) + ")\"}}";
    case Value::kNone:
    case Value::kAny:
        break;
    }
    return name + ' ';
}

/// The words for _arguments: each option of `verbs`, then files.
std::string ZshArguments(const ProgramWords& program, std::uint32_t verbs)
{
    std::string lines = "_arguments -s";
    for (const OptionWords& option : program.options) {
        if ((option.verbs & verbs) != 0) {
            const std::string text = '[' + ZshText(option.text.english) + ']';
            lines +=
                " \\\n        " + Quoted('*' + std::string(option.name) + text + ZshValue(program, option));
        }
    }
    return lines;
}

std::string ZshVerb(const ProgramWords& program, const VerbWords& verb)
{
    std::string lines = "    " + std::string(verb.name) + ")\n      " + ZshArguments(program, verb.verb);
    if (!verb.choices.empty()) {
        lines += " \\\n        " + Quoted("1:form:(" + Spaced(verb.choices) + ')');
    }
    return lines + " \\\n        '*:file:_files' ;;\n";
}

} // namespace

std::string BashCompletion(const ProgramWords& program)
{
    const std::string function = FunctionOf(program);
    std::string script = "# bash completion for " + std::string(program.name) +
                         ", made by the build from the words of its command line\n\n" + function +
                         "()\n{\n    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}\n"
                         "    local i verb='' words='" +
                         OptionsOf(program, ~0u) + "' plain=''\n    COMPREPLY=()\n" + BashValues(program);
    if (!program.verbs.empty()) {
        script += BashVerbs(program);
    }
    return script + "    if [[ $cur == -* || -n $plain ]]; then\n        " + BashWords("$words") +
           "\n        return\n    fi\n    " + kBashFiles + "\n}\ncomplete -F " + function + ' ' +
           std::string(program.name) + '\n';
}

std::string ZshCompletion(const ProgramWords& program)
{
    std::string script = "#compdef " + std::string(program.name) +
                         "\n# made by the build from the words of its command line\n\n";
    if (program.verbs.empty()) {
        return script + ZshArguments(program, ~0u) + " \\\n        '*:file:_files'\n";
    }
    script += "local curcontext=\"$curcontext\" state line\nlocal -a verbs\nverbs=(\n";
    for (const VerbWords& verb : program.verbs) {
        script += "  " + Quoted(std::string(verb.name) + ':' + ZshText(verb.text.english)) + '\n';
    }
    script +=
        ")\n_arguments -C '--help[Prints this help and ends.]' '--version[Prints the version and ends.]' "
        "'1:verb:->verb' '*::word:->word'\n"
        "case $state in\nverb) _describe verb verbs ;;\nword)\n  case $words[1] in\n";
    for (const VerbWords& verb : program.verbs) {
        script += ZshVerb(program, verb);
    }
    return script + "  esac ;;\nesac\n";
}
