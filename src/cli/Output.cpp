#include "cli/Output.h"

#include <cerrno>
#include <cstdio>

Output::Output(const std::string& outputPath) : m_path(outputPath)
{
    if (!m_path.empty()) {
        m_file.emplace(m_path.c_str());
    }
}

bool Output::Note(bool good)
{
    m_readerGone = m_readerGone || (!good && errno == EPIPE);
    return good;
}

bool Output::Write(std::string_view bytes)
{
    m_good = m_good && (m_file ? m_file->Write(bytes)
                               : Note(std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size()));
    return m_good;
}

bool Output::Flush()
{
    m_good = m_good && (m_file || Note(std::fflush(stdout) == 0));
    return m_good;
}

int Output::Finish()
{
    m_good = m_good && (m_file ? m_file->Commit() : Note(std::fflush(stdout) == 0));
    return m_good || m_readerGone
               ? kDone
               : Fail("cannot write " + (m_path.empty() ? std::string("to standard output") : m_path));
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
