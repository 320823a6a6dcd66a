#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class COrrevaData;
struct RescueNote;

/// Why a copy was kept.
enum class RescueReason : std::uint8_t {
    Discarded, ///< the user wanted no save
    NotSaved,  ///< the save failed
    Crash,     ///< the program ended out of order
    Replaced,  ///< another file was written over this one
};

/// "discarded", "not-saved", "crash", "replaced": the words of the notes and of the companion.
const char* RescueReasonWord(RescueReason reason);

/// One copy in the list.
struct RescueCopy {
    std::string file; ///< the path of the copy itself, a design file
    std::string time; ///< ISO 8601 with the offset of the zone in which it was kept
    RescueReason reason = RescueReason::Discarded;
    std::string title; ///< of the design, code page 1252
    std::string path;  ///< of the design, absolute, bytes of the file system
};

/// `$XDG_STATE_HOME/orreva/rescue`, by default in `~/.local/state`; empty without any home.
std::string RescueFolder();

/// Copies of designs that would else be lost, in a folder of their own: for each a design file and a small
/// note of its time, reason, title and path. The newest 50 stay, 20 MB at most. Files in the folder that are
/// none of these, or damaged, are passed over.
///
/// A running program has one live copy more, which it holds by a lock: left behind, it counts as a crash.
class RescueCopies {
public:
    static constexpr std::size_t kMostCopies = 50;
    static constexpr std::uint64_t kMostBytes = 20'000'000;

    explicit RescueCopies(std::string folder = RescueFolder());
    /// Ends in order: the live copy goes.
    ~RescueCopies();
    RescueCopies(const RescueCopies&) = delete;
    RescueCopies& operator=(const RescueCopies&) = delete;

    /// Keeps the bytes of a design file. Gives the path of the copy, empty if it cannot be kept.
    std::string Keep(RescueReason reason, std::string_view bytes, const std::string& title,
                     const std::string& path);
    /// The same of a record's design. If it cannot be kept, the live copy is left behind in its place.
    std::string Keep(RescueReason reason, const COrrevaData& record);
    /// Keeps the bytes of the file at `path`, which is about to be written over.
    std::string KeepReplaced(std::string_view bytes, const std::string& path);

    /// Writes the live copy of this program, or writes it anew. False if it cannot.
    bool WriteLive(const COrrevaData& record);
    /// Takes the live copy away: the design is saved, or needs no copy any more.
    void DropLive();

    /// All copies, newest first. That of a running program is not among them, nor is one whose bytes are no
    /// design.
    std::vector<RescueCopy> List() const;

    /// At a start: the newest copy that a crash or a failed save left behind and that no start before this
    /// one was given; nothing if there is none.
    std::optional<RescueCopy> TakeNews();

    /// The system's code (see FileReason) of the first copy that could not be kept, once; 0 before and
    /// afterwards.
    int TakeFailure();

private:
    struct Entry;

    std::string FileOf(const std::string& id, const char* ending) const;
    std::vector<Entry> Entries() const;
    bool WriteCopy(const std::string& id, const RescueNote& note, std::string_view bytes);
    bool Fail(int error);
    bool MakeFolder();
    bool TakeLock();
    void LeaveLive();
    bool IsRunning(const std::string& id) const;
    void Remove(const std::string& id) const;
    void Prune(const std::string& fresh = "") const;
    void RemoveRemains() const;

    std::string m_folder;
    std::string m_liveId; ///< empty until the first live copy
    int m_lock = -1;
    int m_failure = 0;
    bool m_told = false;
};
