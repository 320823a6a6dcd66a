#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "cli/Verbs.h"
#include "lib/text/Language.h"
#include "lib/text/LogSink.h"

#include "Version.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr const char* kHelp = R"(orreva-cli: the Orreva workbench without a window

  orreva-cli report [TELESCOPE] [--page PAGE]... [--details] [-o OUT.pdf [--paper PAPER]]
  orreva-cli sheets [TELESCOPE] [--sheet SHEET]... [--paper PAPER] [--zones N] [--centre PERCENT] -o OUT.pdf
  orreva-cli rays   [TELESCOPE] --mode parallel|focal|pointer --pointer X,Y [--hide-lost] [--no-offset]
  orreva-cli draw   [TELESCOPE] --picture PICTURE --size WxH -o OUT.png|.svg|.pdf
  orreva-cli save   [TELESCOPE] [-o FILE]
  orreva-cli import OLD [-o FILE]
  orreva-cli export oslo|fta [TELESCOPE] [-o OUT]
  orreva-cli values [TELESCOPE] [--only NAME]...
  orreva-cli check  [TELESCOPE]
  orreva-cli compare FILE FILE
  orreva-cli sweep  [TELESCOPE] --vary KEY=FROM:TO:COUNT... [--show NAME]... [--jobs N]
  orreva-cli calc   [EXPRESSION]...
  orreva-cli figure [TELESCOPE] --readings FILE [--source moving|fixed] [--conic K] [--wavelength NM]
                    [--format text|csv|json]
  orreva-cli rescue [NUMBER] [-o FILE]

TELESCOPE is a design FILE, or the telescope of the quick New dialog with any of --diameter MM,
--focal-length MM and --title TEXT; then --set KEY=VALUE, any number of times (VALUE unset: not set).

PAGE is summary, primary, secondary, tube, focuser, cell, eyepieces, balance, foucault, ronchi, star, marks or
field, all of them without --page; or illumination. For foucault: --zones N, --centre PERCENT, --edge MM,
--template couder|everest, --method carlin|couder|texereau, --source moving|fixed.

PICTURE is section (--mode, --pointer, --zoom 1..5, --scroll X,Y, --extended, --no-offset, --box-and-cage),
summary, tube-panel, mirror-panel, field, ronchi (--seed N), polygon (--type I --diameter MM --thickness MM),
sector (--type I --diameter MM --value V), illumination, secondary-choice or wavefront (--readings FILE, --source,
--conic, --wavelength).

sheets lays workshop sheets out in true scale: SHEET is couder-mask, everest, secondary, marks or tube, all of them
without --sheet. Print them at 100 %. report -o OUT.pdf lays its pages out on paper. PAPER is A4, A3, Letter or Tabloid.

values prints every number of the design, or each NAME, with its unit; check tells what is wrong with it, and
compare what differs between two. sweep prints a table of designs: one to four --vary, the first running slowest.
report, values, check, compare and sweep take --format text|csv|json.

calc answers each expression, or each line of standard input, with one line.

rescue lists the copies of designs that were left unsaved, newest first; with a NUMBER it writes that copy.

Every verb takes --language en|de and -o FILE; --help and --version stand alone or behind a verb.
Exit status: 0 done, 1 a file or an expression failed, 2 the command line is not understood, 3 check found
errors or warnings.
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

constexpr const char* kNoMemory = "not enough memory";

/// What the memory cannot hold is one line, on whichever thread it is found. Anything else that nobody caught
/// is a fault of the program.
void OnUncaught()
{
    try {
        std::rethrow_exception(std::current_exception());
    } catch (const std::bad_alloc&) {
        std::_Exit(Fail(kNoMemory));
    } catch (...) {
        std::abort();
    }
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a reader that has seen enough ends the output as a failed write,
    std::signal(SIGXFSZ, SIG_IGN); // and so does a file that may not grow
    SetLogSink(nullptr);           // standard error is for the user, in a debug build too
    std::set_terminate(OnUncaught);
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
