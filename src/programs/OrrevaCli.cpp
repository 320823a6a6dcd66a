#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "cli/Verbs.h"
#include "lib/text/Language.h"
#include "lib/text/LogSink.h"

#include "Version.h"

#include <csignal>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr const char* kHelp = R"(orreva-cli: the Orreva workbench without a window

  orreva-cli report [TELESCOPE] [--page PAGE]... [--details]
  orreva-cli rays   [TELESCOPE] --mode parallel|focal|pointer --pointer X,Y [--hide-lost] [--no-offset]
  orreva-cli draw   [TELESCOPE] --picture PICTURE --size WxH -o OUT.png|.svg|.pdf
  orreva-cli save   [TELESCOPE] [-o FILE]
  orreva-cli import OLD [-o FILE]
  orreva-cli export oslo|fta [TELESCOPE] [-o OUT]
  orreva-cli calc   [EXPRESSION]...

TELESCOPE is a design FILE, or the telescope of the quick New dialog with any of --diameter MM,
--focal-length MM and --title TEXT; then --set KEY=VALUE, any number of times (VALUE unset: not set).

PAGE is summary, primary, secondary, tube, focuser, cell, eyepieces, balance, foucault, ronchi, star, marks or
field; all of them without --page. For foucault: --zones N, --centre PERCENT, --edge MM,
--template couder|everest, --method carlin|couder|texereau, --source moving|fixed.

PICTURE is section (--mode, --pointer, --zoom 1..5, --scroll X,Y, --extended, --no-offset, --box-and-cage),
summary, tube-panel, mirror-panel, field, ronchi (--seed N), polygon (--type I --diameter MM --thickness MM) or
sector (--type I --diameter MM --value V).

calc answers each expression, or each line of standard input, with one line.

Every verb takes --language en|de and -o FILE; --help and --version stand alone or behind a verb.
Exit status: 0 done, 1 a file or an expression failed, 2 the command line is not understood.
)";

int Run(const std::vector<std::string>& arguments)
{
    const CommandLine words = ParseCommandLine(arguments);
    if (words.help || words.version) {
        return WriteOutput("", words.help ? kHelp : std::string("orreva-cli ") + kVersion + "\n");
    }
    if (const auto language = words.Value("--language")) {
        g_nLanguage = static_cast<int>(ChoiceOf("--language", *language, {"en", "de"}));
    }
    return RunVerb(words);
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a reader that has seen enough ends the output as a failed write
    SetLogSink(nullptr);           // standard error is for the user, in a debug build too
    try {
        return Run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
    } catch (const UsageFault& fault) {
        std::fprintf(stderr, "%s\n", fault.line.c_str());
        return 2;
    }
}
