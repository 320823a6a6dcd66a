#pragma once

#include "document/DocumentHost.h"
#include "document/OrrevaDoc.h"

#include <optional>
#include <string>

struct CommandLine;

/// The terminal as a document's desktop: messages go to standard error, questions are answered with No, and
/// dialogs end with the answers that the command line gives.
class TerminalHost : public DocumentHost {
public:
    std::string path;
    std::optional<QuickNewTexts> quick_new;
    bool warned = false; ///< a message was shown

    bool AskYesNo(const char*) override { return false; }
    void ShowMessage(const char* text) override;
    void SetDocumentTitle(const char*) override {}
    void BeginWait() override {}
    void EndWait() override {}
    bool OnNewDocument() override { return true; }
    void UpdateAllViews() override {}
    std::string AskPath(const FileDialog&) override { return path; }
    bool AskQuickNew(QuickNewTexts& texts) override;
    bool AskRaytracingSettings(std::uint8_t) override { return false; }
    bool RunModal(Modal) override { return false; }
};

/// Makes the telescope that the words tell: the quick New dialog's, changed by `--diameter`, `--focal-length`
/// and `--title`, or the one of `file`; then stores every `--set` in its order, without a recalculation. The
/// number of values that were stored; nothing, told on standard error, if the file cannot be read. A word at
/// fault ends the program.
std::optional<std::size_t> StartTelescope(const CommandLine& words, const std::optional<std::string>& file,
                                          TerminalHost& host, COrrevaDoc& document);

/// The same with one recalculation behind the stored values, if there are any. False if the file cannot be
/// read.
bool MakeTelescope(const CommandLine& words, const std::optional<std::string>& file, TerminalHost& host,
                   COrrevaDoc& document);
