#include "app/OrrevaApp.h"
#include "app/ProgramStyle.h"
#include "cli/words/HelpText.h"

#include "Version.h"

#include <QApplication>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <span>
#include <string_view>

namespace {

bool HasWord(std::span<char* const> words, std::string_view wanted)
{
    return std::ranges::any_of(words, [wanted](const char* word) { return word == wanted; });
}

/// --help and --version answer on the terminal, without a display too. False for all other words.
bool AnswerOnTerminal(std::span<char* const> words)
{
    const bool help = HasWord(words, "--help");
    if (help || HasWord(words, "--version")) {
        const ProgramWords& program = WorkbenchWords();
        const std::string text =
            help ? HelpText(program, TerminalLanguage()) : VersionText(program, kVersion);
        std::fputs(text.c_str(), stdout);
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && AnswerOnTerminal({argv + 1, static_cast<std::size_t>(argc - 1)})) {
        return std::fflush(stdout) == 0 ? 0 : 1;
    }
    QApplication application(argc, argv);
    // The toolkit takes the system's locale over; numbers are read and written in the C locale always.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("Orreva");
    QApplication::setApplicationVersion(kVersion);
    QApplication::setDesktopFileName("org.orreva.Orreva");
    QApplication::setStyle(new CProgramStyle);

    COrrevaApp app;
    if (!app.InitInstance(QApplication::arguments().mid(1))) {
        return 1;
    }
    return QApplication::exec();
}
