#include "document/DesignFiles.h"

#include "document/RescueCopies.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "lib/files/FileReason.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr Bilingual kWritten{"Written: %s", "Geschrieben: %s"};
constexpr Bilingual kNotWritten{"Cannot write %s: %s", "%s kann nicht geschrieben werden: %s"};
constexpr Bilingual kOldKept{"; the old file is kept as %s", "; die alte Datei liegt in %s"};

/// Where a path leads, so that one file has one name; whether anything stands there or not.
std::string PlainPath(const std::string& path)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    const fs::path plain = error ? absolute : fs::weakly_canonical(absolute, error);
    return (error ? absolute.lexically_normal() : plain).string();
}

} // namespace

const SaveOutcome& DesignFiles::Save(const std::string& path, std::string_view bytes)
{
    m_lastPath = PlainPath(path);
    m_outcome = {};
    PutAside aside;
    if (m_copies != nullptr) {
        aside = [this](const std::string& file, std::string_view old) {
            return m_copies->KeepReplaced(old, file);
        };
    }
    if (m_copies != nullptr && !IsOwn(path) && !KeepOld(m_lastPath)) {
        return m_outcome;
    }
    m_outcome = ReplaceFile(path.c_str(), bytes, aside);
    if (m_outcome) {
        NoteOwn(path);
    }
    return m_outcome;
}

/// Before a file that is none of this run's is replaced. False if it could be kept nowhere.
bool DesignFiles::KeepOld(const std::string& path)
{
    std::error_code none;
    if (!fs::is_regular_file(path, none) || access(path.c_str(), W_OK) != 0) {
        return true; // there is nothing to keep, or the save fails for a reason of its own
    }
    if (access(path.c_str(), R_OK) != 0) {
        m_outcome.error = errno; // what cannot be read cannot be kept
        return false;
    }
    // What stood under the other name goes, and may be the only one of its kind.
    const std::string kept = path + "~";
    KeepAmongCopies(kept);
    const int error = CopyFileBeside(path, kept);
    if (error == EACCES || error == EPERM || error == EROFS) {
        return true; // the folder cannot be written: the save itself puts a copy aside, or fails
    }
    if (KeepAmongCopies(path) || error == 0) {
        return true;
    }
    m_outcome.error = error;
    return false;
}

/// Keeps a file among the rescue copies, if it is a design. False if none is kept.
bool DesignFiles::KeepAmongCopies(const std::string& path)
{
    const auto bytes = ReadFileBytes(path.c_str(), kMostKeptBytes + 1);
    return bytes && IsDesignText(*bytes) && !m_copies->KeepReplaced(*bytes, path).empty();
}

std::string DesignFiles::LastText(int language) const
{
    const std::string path = Cp1252FromUtf8(m_lastPath);
    if (m_outcome) {
        return FormatText(kWritten.In(language), path.c_str());
    }
    std::string text =
        FormatText(kNotWritten.In(language), path.c_str(), FileReason(m_outcome.error).In(language));
    if (!m_outcome.kept.empty()) {
        text += FormatText(kOldKept.In(language), Cp1252FromUtf8(m_outcome.kept).c_str());
    }
    return text;
}

void DesignFiles::NoteOwn(const std::string& path) { m_own.insert(PlainPath(path)); }

bool DesignFiles::IsOwn(const std::string& path) const { return m_own.contains(PlainPath(path)); }

bool DesignFiles::Write(const COrrevaData& record)
{
    return static_cast<bool>(Save(record.file_path.GetText(), WriteTelescope(record)));
}

void DesignFiles::Read(COrrevaData& record)
{
    const XmlScanner scanner(record.file_path);
    ReadTelescope(scanner, record);
    if (scanner.IsDesign()) {
        NoteOwn(record.file_path.GetText());
    }
}

void DesignFiles::NotSaved(const COrrevaData& record, bool failed)
{
    if (m_copies != nullptr) {
        m_copies->Keep(failed ? RescueReason::NotSaved : RescueReason::Discarded, record);
    }
}
