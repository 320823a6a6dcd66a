#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "cli/Verbs.h"
#include "cli/words/HelpText.h"
#include "lib/text/Language.h"
#include "lib/text/LogSink.h"

#include "Version.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

int Run(const std::vector<std::string>& arguments)
{
    const CommandLine words = ParseCommandLine(arguments);
    if (const auto language = words.Value("--language")) {
        g_nLanguage = static_cast<int>(ChoiceOf("--language", *language, {"en", "de"}));
    }
    if (words.help || words.version) {
        const ProgramWords& program = CompanionWords();
        return WriteOutput("", words.help ? HelpText(program, g_nLanguage) : VersionText(program, kVersion));
    }
    return RunVerb(words);
}

constexpr const char* kNoMemory = "not enough memory";

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a reader that has seen enough ends the output as a failed write,
    std::signal(SIGXFSZ, SIG_IGN); // and so does a file that may not grow
    SetLogSink(nullptr);           // standard error is for the user, in a debug build too
    try {
        return Run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
    } catch (const UsageFault& fault) {
        std::fprintf(stderr, "%s\n", fault.line.c_str());
        return 2;
    } catch (const std::bad_alloc&) {
        return Fail(kNoMemory);
    } catch (const std::length_error&) {
        return Fail(kNoMemory); // nor could any other
    }
}
