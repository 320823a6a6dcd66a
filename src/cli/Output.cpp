#include "cli/Output.h"

#include "cli/Words.h"
#include "lib/FileBytes.h"

#include <cstdio>

int WriteOutput(const Words& words, std::string_view bytes)
{
    if (const auto path = words.Value("-o")) {
        return ReplaceFile(path->c_str(), bytes) ? kDone : Fail("cannot write " + *path);
    }
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
    return std::fflush(stdout) == 0 && written ? kDone : Fail("cannot write to standard output");
}

int Fail(const std::string& reason)
{
    std::fprintf(stderr, "orreva-cli: %s\n", reason.c_str());
    return kFailed;
}
