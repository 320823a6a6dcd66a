// A tool of the build: writes what is made of the programs' words into a folder. WriteWords FOLDER writes
// man/man1/*.1, man/de/man1/*.1, bash/* and zsh/_*.

#include "cli/words/Completion.h"
#include "cli/words/ManPage.h"
#include "cli/words/ProgramWords.h"

#include "Version.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

bool Write(const std::filesystem::path& path, const std::string& text)
{
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) {
        std::fprintf(stderr, "%s cannot be written\n", path.c_str());
    }
    return file.good();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    bool written = true;
    for (const ProgramWords* const program : {&WorkbenchWords(), &CompanionWords()}) {
        const std::string name(program->name);
        written = Write(folder / "man/man1" / (name + ".1"), ManPage(*program, kFileVersion, kEnglish)) &&
                  Write(folder / "man/de/man1" / (name + ".1"), ManPage(*program, kFileVersion, kGerman)) &&
                  Write(folder / "bash" / name, BashCompletion(*program)) &&
                  Write(folder / "zsh" / ('_' + name), ZshCompletion(*program)) && written;
    }
    return written ? 0 : 1;
}
