#include "document/RescueCopies.h"

#include "document/RescueNote.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "lib/files/Descriptors.h"
#include "lib/files/FileBytes.h"
#include "lib/files/FileQueries.h"
#include "lib/platform/DataFolders.h"
#include "model/record/OrrevaData.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* kDesignEnding = ".orreva.xml";
constexpr const char* kNoteEnding = ".note";
constexpr const char* kLockEnding = ".lock";
constexpr std::size_t kLongestNote = 65536;

/// A name for a copy that no other one has, on this machine or another with the same home.
std::string NewId(std::int64_t nanoseconds)
{
    std::random_device random;
    char id[40];
    std::snprintf(id, sizeof id, "%016llx-%08x", static_cast<unsigned long long>(nanoseconds),
                  static_cast<unsigned>(random()));
    return id;
}

bool IsId(std::string_view name)
{
    constexpr std::size_t kDash = 16;
    return name.size() == kDash + 9 && name[kDash] == '-' &&
           name.find_first_not_of("0123456789abcdef") == kDash &&
           name.find_first_not_of("0123456789abcdef", kDash + 1) == std::string_view::npos;
}

std::string AbsolutePath(const std::string& path)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    return error ? path : absolute.lexically_normal().string();
}

} // namespace

/// A copy as its note tells of it.
struct RescueCopies::Entry {
    std::string id;
    RescueNote note;
    std::uint64_t bytes = 0; ///< of the design file and the note
};

const char* RescueReasonWord(RescueReason reason)
{
    constexpr const char* kWords[] = {"discarded", "not-saved", "crash", "replaced"};
    return kWords[static_cast<std::size_t>(reason)];
}

std::string RescueFolder()
{
    const char* const state = std::getenv("XDG_STATE_HOME");
    if (state != nullptr && *state == '/') {
        return std::string(state) + "/orreva/rescue";
    }
    const std::string home = HomeOfUser();
    return home.empty() ? home : home + "/.local/state/orreva/rescue";
}

RescueCopies::RescueCopies(std::string folder) : m_folder(std::move(folder)) {}

RescueCopies::~RescueCopies()
{
    DropLive();
    if (m_lock >= 0) {
        unlink(FileOf(m_liveId, kLockEnding).c_str());
        close(m_lock);
    }
}

std::string RescueCopies::FileOf(const std::string& id, const char* ending) const
{
    return m_folder + "/" + id + ending;
}

std::string RescueCopies::Keep(RescueReason reason, std::string_view bytes, const std::string& title,
                               const std::string& path)
{
    RescueNote note = RescueNote::Now();
    note.reason = RescueReasonWord(reason);
    note.title = title;
    note.path = AbsolutePath(path);
    const std::string id = NewId(note.nanoseconds);
    if (!WriteCopy(id, note, bytes)) {
        return "";
    }
    Prune(id);
    return FileOf(id, kDesignEnding);
}

std::string RescueCopies::Keep(RescueReason reason, const COrrevaData& record)
{
    std::string file =
        Keep(reason, WriteTelescope(record), record.GetTitle().GetText(), record.file_path.GetText());
    if (file.empty()) {
        LeaveLive(); // on a full disk, it is all that there is of the design
    }
    return file;
}

std::string RescueCopies::KeepReplaced(std::string_view bytes, const std::string& path)
{
    COrrevaData record;
    ReadTelescope(XmlScanner::FromText(bytes), record);
    return Keep(RescueReason::Replaced, bytes, record.GetTitle().GetText(), path);
}

bool RescueCopies::WriteCopy(const std::string& id, const RescueNote& note, std::string_view bytes)
{
    if (bytes.size() > kMostBytes) {
        return Fail(EFBIG);
    }
    if (!MakeFolder()) {
        return false;
    }
    const bool fresh = FileExists(FileOf(id, kNoteEnding).c_str()) == 0;
    // A note makes a copy of the file, so that it comes last.
    const SaveOutcome design = ReplaceFile(FileOf(id, kDesignEnding).c_str(), bytes);
    const SaveOutcome noted = design ? ReplaceFile(FileOf(id, kNoteEnding).c_str(), note.Text()) : design;
    if (!noted) {
        if (fresh) {
            Remove(id); // an earlier state of the live copy stays
        }
        return Fail(noted.error);
    }
    return true;
}

bool RescueCopies::Fail(int error)
{
    m_failure = m_failure == 0 ? error : m_failure;
    return false;
}

int RescueCopies::TakeFailure()
{
    if (m_told || m_failure == 0) {
        return 0;
    }
    m_told = true;
    return m_failure;
}

/// The folder and those above it; what stands in it is nobody else's business.
bool RescueCopies::MakeFolder()
{
    std::error_code error;
    if (m_folder.empty()) {
        return Fail(ENOENT);
    }
    if (fs::is_directory(m_folder, error)) {
        return true;
    }
    fs::create_directories(m_folder, error);
    if (error) {
        return Fail(error.value());
    }
    fs::permissions(m_folder, fs::perms::owner_all, error);
    return true;
}

bool RescueCopies::TakeLock()
{
    if (m_lock >= 0) {
        return true;
    }
    if (!MakeFolder()) {
        return false;
    }
    m_liveId = NewId(RescueNote::Now().nanoseconds);
    m_lock = open(FileOf(m_liveId, kLockEnding).c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (m_lock < 0) {
        return Fail(errno);
    }
    flock(m_lock, LOCK_EX); // only a list that is being made could hold it, for a moment
    return true;
}

bool RescueCopies::WriteLive(const COrrevaData& record)
{
    if (!TakeLock()) {
        return false;
    }
    RescueNote note = RescueNote::Now();
    note.reason = RescueReasonWord(RescueReason::Crash);
    note.title = record.GetTitle().GetText();
    note.path = AbsolutePath(record.file_path.GetText());
    return WriteCopy(m_liveId, note, WriteTelescope(record));
}

void RescueCopies::DropLive()
{
    if (m_lock >= 0) {
        Remove(m_liveId);
    }
}

/// Lets go of the live copy, which stays as one that a crash left behind.
void RescueCopies::LeaveLive()
{
    if (m_lock >= 0 && FileExists(FileOf(m_liveId, kNoteEnding).c_str()) != 0) {
        unlink(FileOf(m_liveId, kLockEnding).c_str());
        close(std::exchange(m_lock, -1));
    }
}

void RescueCopies::Remove(const std::string& id) const
{
    // The note first: without it the design file is no copy.
    unlink(FileOf(id, kNoteEnding).c_str());
    unlink(FileOf(id, kDesignEnding).c_str());
}

/// Whether a program that runs holds the copy; one of this program's own counts, too.
bool RescueCopies::IsRunning(const std::string& id) const
{
    const Descriptor lock(open(FileOf(id, kLockEnding).c_str(), O_RDONLY | O_CLOEXEC));
    return lock && flock(lock.Number(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

std::vector<RescueCopies::Entry> RescueCopies::Entries() const
{
    std::vector<Entry> entries;
    for (const std::string& name : FolderNames(m_folder)) {
        const std::string id = name.substr(0, name.find('.'));
        if (!IsId(id) || name != id + kNoteEnding || IsRunning(id)) {
            continue;
        }
        const auto text = ReadFileBytes(FileOf(id, kNoteEnding).c_str(), kLongestNote);
        const auto note = text ? RescueNote::Parse(*text) : std::nullopt;
        if (note) {
            const auto size = static_cast<std::uint64_t>(FileSize(FileOf(id, kDesignEnding).c_str()));
            entries.push_back({id, *note, size + text->size()});
        }
    }
    std::ranges::sort(entries, [](const Entry& a, const Entry& b) {
        return std::tie(b.note.nanoseconds, b.id) < std::tie(a.note.nanoseconds, a.id);
    });
    return entries;
}

std::vector<RescueCopy> RescueCopies::List() const
{
    constexpr RescueReason kReasons[] = {RescueReason::Discarded, RescueReason::NotSaved, RescueReason::Crash,
                                         RescueReason::Replaced};
    std::vector<RescueCopy> copies;
    for (const Entry& entry : Entries()) {
        const auto reason = std::ranges::find(kReasons, entry.note.reason, RescueReasonWord);
        const std::string file = FileOf(entry.id, kDesignEnding);
        const auto bytes = ReadFileBytes(file.c_str(), kMostBytes);
        if (reason != std::end(kReasons) && bytes && IsDesignText(*bytes)) {
            copies.push_back({file, entry.note.Time(), *reason, entry.note.title, entry.note.path});
        }
    }
    return copies;
}

std::optional<RescueCopy> RescueCopies::TakeNews()
{
    Prune();
    std::optional<RescueCopy> news;
    for (const RescueCopy& copy : List()) {
        const std::string id = fs::path(copy.file).filename().string().substr(0, 25);
        const auto text = ReadFileBytes(FileOf(id, kNoteEnding).c_str(), kLongestNote);
        auto note = text ? RescueNote::Parse(*text) : std::nullopt;
        if (!note || note->seen ||
            (copy.reason != RescueReason::Crash && copy.reason != RescueReason::NotSaved)) {
            continue;
        }
        news = news ? news : copy;
        note->seen = true;
        ReplaceFile(FileOf(id, kNoteEnding).c_str(), note->Text());
        unlink(FileOf(id, kLockEnding).c_str());
    }
    return news;
}

/// A copy that was just made stays, whatever the times in the others' notes say.
void RescueCopies::Prune(const std::string& fresh) const
{
    std::vector<Entry> entries = Entries();
    std::stable_partition(entries.begin(), entries.end(),
                          [&](const Entry& entry) { return entry.id == fresh; });
    std::size_t count = 0;
    std::uint64_t bytes = 0;
    for (const Entry& entry : entries) {
        bytes += entry.bytes;
        if ((++count > kMostCopies || bytes > kMostBytes) && entry.id != fresh) {
            Remove(entry.id);
            unlink(FileOf(entry.id, kLockEnding).c_str());
        }
    }
    RemoveRemains();
}

/// What a program that was killed in the middle left without a note: nobody is at work on it after a day.
void RescueCopies::RemoveRemains() const
{
    constexpr std::int64_t kDay = 86'400'000'000'000;
    const std::string latest = NewId(RescueNote::Now().nanoseconds - kDay);
    for (const std::string& name : FolderNames(m_folder)) {
        const std::string id = name.substr(0, name.find('.'));
        const bool ours = IsId(id) && (name == id + kDesignEnding || name == id + kLockEnding);
        if (ours && id < latest && FileExists(FileOf(id, kNoteEnding).c_str()) == 0 && !IsRunning(id)) {
            unlink((fs::path(m_folder) / name).c_str());
        }
    }
}
