#include "cli/Shell.h"

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::string Take(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

CliRun Cli(const std::string& words, const std::string& input)
{
    std::string folder = (std::filesystem::temp_directory_path() / "orreva-cli-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) {
        return {-1, "", "no temporary folder"};
    }
    std::ofstream(folder + "/in", std::ios::binary) << input;
    const std::string line = std::string(ORREVA_CLI) + " " + words + " <" + folder + "/in >" + folder +
                             "/out 2>" + folder + "/err";
    const int ended = std::system(line.c_str());
    CliRun run{WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, Take(folder + "/out"), Take(folder + "/err")};
    std::filesystem::remove_all(folder);
    return run;
}
