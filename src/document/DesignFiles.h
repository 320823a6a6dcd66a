#pragma once

#include "lib/files/FileBytes.h"
#include "model/record/OrrevaData.h"

#include <set>
#include <string>
#include <string_view>

class RescueCopies;

/// The user's files as a document writes and reads them. A file that this run neither opened as a design nor
/// wrote itself is kept as `NAME~` before the first save replaces it; a design is then also kept among the
/// rescue copies.
class DesignFiles : public RecordFiles {
public:
    /// Where copies are kept; null (as at the start): nowhere, and no `NAME~` either.
    void KeepCopies(RescueCopies* copies) { m_copies = copies; }
    RescueCopies* Copies() const { return m_copies; }

    /// Writes a file of the user's (an export, a design) by these rules.
    const SaveOutcome& Save(const std::string& path, std::string_view bytes);

    /// How the last Save, Write included, ended, and the absolute path that it wrote to.
    const SaveOutcome& LastOutcome() const { return m_outcome; }
    const std::string& LastPath() const { return m_lastPath; }

    /// What the status bar says of the last save: what was written, or what failed and why (code page 1252).
    std::string LastText(int language) const;

    /// Remembers a file as one of this run: a design that it opened.
    void NoteOwn(const std::string& path);

    // For records ----------------------------------------------------------------------------------------

    bool Write(const COrrevaData& record) override;
    /// A text that holds no `<telescope` is read, but its file does not count as opened.
    void Read(COrrevaData& record) override;
    void NotSaved(const COrrevaData& record, bool failed) override;

private:
    bool IsOwn(const std::string& path) const;
    bool KeepOld(const std::string& path);
    bool KeepAmongCopies(const std::string& path);

    RescueCopies* m_copies = nullptr;
    std::set<std::string> m_own; ///< absolute paths without links
    SaveOutcome m_outcome;
    std::string m_lastPath;
};
