#include "cli/Output.h"

#include "document/RescueCopies.h"

#include <cerrno>
#include <cstdio>

Output::Output(const std::string& outputPath) : m_path(outputPath == "-" ? "" : outputPath)
{
    if (!m_path.empty()) {
        m_file.emplace(m_path.c_str(), CompanionPutAside());
    }
}

bool Output::Check(bool good)
{
    if (!good && m_error == 0) {
        m_error = m_file ? m_file->Outcome().error : errno;
        m_error = m_error != 0 ? m_error : EIO;
    }
    return m_error == 0;
}

bool Output::Write(std::string_view bytes)
{
    return Check(
        m_error == 0 &&
        (m_file ? m_file->Write(bytes) : std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size()));
}

bool Output::Flush() { return Check(m_error == 0 && (m_file || std::fflush(stdout) == 0)); }

bool Output::IsReaderGone() const { return m_error == EPIPE; }

int Output::Finish()
{
    if (Check(m_error == 0 && (m_file ? m_file->Commit() : std::fflush(stdout) == 0)) || IsReaderGone()) {
        return kDone;
    }
    if (m_path.empty()) {
        return Fail("cannot write to standard output");
    }
    const std::string kept = m_file->Outcome().kept;
    return Fail("cannot write " + m_path + (kept.empty() ? "" : "; the old file is kept as " + kept));
}

int WriteOutput(const std::string& path, std::string_view bytes)
{
    Output output(path);
    output.Write(bytes);
    return output.Finish();
}

PutAside CompanionPutAside()
{
    return [](const std::string& path, std::string_view bytes) {
        return RescueCopies().KeepReplaced(bytes, path);
    };
}

int Fail(const std::string& reason)
{
    std::fprintf(stderr, "orreva-cli: %s\n", reason.c_str());
    return kFailed;
}
