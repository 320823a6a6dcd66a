#include "cli/Output.h"

#include <cstdio>

Output::Output(const std::string& outputPath) : path(outputPath)
{
    if (!path.empty()) {
        file.emplace(path.c_str());
    }
}

bool Output::Write(std::string_view bytes)
{
    good = good &&
           (file ? file->Write(bytes) : std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size());
    return good;
}

bool Output::Flush()
{
    good = good && (file || std::fflush(stdout) == 0);
    return good;
}

int Output::Finish()
{
    good = good && (file ? file->Commit() : std::fflush(stdout) == 0);
    return good ? kDone : Fail("cannot write " + (path.empty() ? std::string("to standard output") : path));
}

int WriteOutput(const std::string& path, std::string_view bytes)
{
    Output output(path);
    output.Write(bytes);
    return output.Finish();
}

int Fail(const std::string& reason)
{
    std::fprintf(stderr, "orreva-cli: %s\n", reason.c_str());
    return kFailed;
}
