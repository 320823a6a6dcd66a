#include "cli/Output.h"

#include "lib/FileBytes.h"

#include <cstdio>

namespace {

bool WriteToStandardOutput(std::string_view bytes)
{
    return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0;
}

} // namespace

int WriteOutput(const std::string& path, std::string_view bytes)
{
    const bool written = path.empty() ? WriteToStandardOutput(bytes) : ReplaceFile(path.c_str(), bytes);
    if (!written) {
        std::fprintf(stderr, "orreva-cli: cannot write %s\n",
                     path.empty() ? "to standard output" : path.c_str());
    }
    return written ? kDone : kFailed;
}
