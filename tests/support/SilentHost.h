#pragma once

#include "document/DocumentHost.h"

#include <string>

/// A desktop that shows nothing and answers every question with Cancel or No.
class SilentHost : public DocumentHost {
public:
    bool AskYesNo(const char*) override { return false; }
    void ShowMessage(const char*) override {}
    void SetDocumentTitle(const char*) override {}
    void BeginWait() override {}
    void EndWait() override {}
    bool OnNewDocument() override { return true; }
    void UpdateAllViews() override {}
    std::string AskPath(const FileDialog&) override { return {}; }
    bool AskQuickNew(QuickNewTexts&) override { return false; }
    bool AskRaytracingSettings(std::uint8_t) override { return false; }
    bool RunModal(Modal) override { return false; }
};
