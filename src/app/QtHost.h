#pragma once

#include "document/DocumentHost.h"
#include "lib/text/Assertion.h"

#include <QPointer>

class CIlluminationWindow;
class QWidget;
class CMainFrame;
class COrrevaDoc;

/// The document's desktop in Qt. Boxes and dialogs stand over the dialog that runs, or else the main window.
class CQtHost : public DocumentHost, public AssertDesktop {
public:
    /// The frame and the document, once they stand; until then titles and repaints go nowhere.
    void Attach(CMainFrame* mainFrame, COrrevaDoc* doc);

    bool AskYesNo(const char* text) override;
    void ShowMessage(const char* text) override;
    void SetDocumentTitle(const char* path) override;
    void BeginWait() override;
    void EndWait() override;

    bool OnNewDocument() override { return true; }
    void UpdateAllViews() override;
    std::string AskPath(const FileDialog& dialog) override;
    bool AskQuickNew(QuickNewTexts& texts) override;
    bool AskRaytracingSettings(std::uint8_t miss_in_grey) override;
    bool RunModal(Modal modal) override;
    void ShowIllumination(const IlluminationStops& stops, double wanted) override;
    void ShowStatus(const char* text) override;
    std::optional<std::size_t> AskEarlierDesign(std::span<const RescueCopy> copies,
                                                std::optional<std::size_t> selected) override;

    AssertAnswer AskAssert(const char* title, const char* text) override;
    void CloseMainWindow() override;
    void BreakIntoDebugger() override;
    void FatalAppExit(const char* text) override;
    void ShowBox(const char* title, const char* text, bool bStop) override;
    bool ChooseFolder(const char* title, const char* root, LibString& target) override;

private:
    QWidget* Owner() const;

    QPointer<CIlluminationWindow> m_illumination; ///< of the dialog that runs

    CMainFrame* m_frame = nullptr;
    COrrevaDoc* m_document = nullptr;
};
