#pragma once

#include "lib/text/Language.h"
#include "model/record/TelescopeFields.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <utility>

class COrrevaData;

/// A state of the record, as a value: what undo and redo put back.
struct RecordState {
    TelescopeFields fields;
    std::string path; ///< bytes of the file system; empty: no telescope is loaded
    std::uint8_t modified = 0;
};

RecordState StateOf(const COrrevaData& record);
/// Makes `record` what it was; the document's title is not told.
void PutState(const RecordState& state, COrrevaData& record);
/// Whether two states are the same telescope under the same path. A number that is unset counts as the
/// default that it would become, so that reading a record is no change of it.
bool IsSameDesign(const RecordState& a, const RecordState& b);

enum class StepKind : std::uint8_t {
    Changes,  ///< the design that was there
    Replaces, ///< by another design, which may have the same path
};

/// The steps of the user that can be taken back and done again.
class History {
public:
    static constexpr std::size_t kMostSteps = 100;

    /// What a step begins with: the state that undoing it puts back.
    void StartFrom(RecordState state) { m_start = std::move(state); }
    const RecordState& Start() const { return m_start; }
    /// A step of that name ended in `now`: it can be taken back, and what had been taken back is forgotten.
    /// The next step begins here. False, and nothing kept, if it changed nothing.
    bool Note(const Bilingual& name, const RecordState& now, StepKind kind = StepKind::Changes);

    /// The name of the step that would be taken back or done again, null if there is none.
    const Bilingual* UndoName() const { return m_undo.empty() ? nullptr : &m_undo.back().name; }
    const Bilingual* RedoName() const { return m_redo.empty() ? nullptr : &m_redo.back().name; }
    /// Moves one step back or forth from `now`; gives the state to put. Only where a name stands.
    RecordState Undo(RecordState now) { return Move(m_undo, m_redo, std::move(now)); }
    RecordState Redo(RecordState now) { return Move(m_redo, m_undo, std::move(now)); }

    /// The present design got another path: so do its earlier and later states, which must not go to the old
    /// one. Other designs keep theirs.
    void Renamed(const std::string& from, const std::string& to);
    /// The file at `path` now holds `fields`: states of that path are modified as far as they differ from it.
    void Saved(const std::string& path, const TelescopeFields& fields);

private:
    struct Step {
        Bilingual name;
        StepKind kind;
        RecordState state; ///< before the step, or after it if it can be done again
    };
    using Steps = std::deque<Step>;

    static RecordState Move(Steps& from, Steps& to, RecordState now);

    RecordState m_start;
    Steps m_undo;
    Steps m_redo;
};
