#pragma once

#include "document/DocumentHost.h"

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// A desktop that notes what it is asked and answers from prepared answers; Cancel and No when none is left.
class RecordingHost : public DocumentHost {
public:
    std::vector<std::string> events;

    std::deque<bool> yes_no;
    std::deque<std::string> paths;
    std::deque<QuickNewTexts> quick_new;
    std::deque<bool> settings;
    std::deque<bool> modals;
    bool new_document = true;
    std::optional<std::size_t> earlier; ///< the answer to each list of earlier designs
    std::string status;                 ///< the message that the status bar shows
    /// Run while a modal is open.
    std::function<void(Modal)> in_modal;

    bool AskYesNo(const char* text) override
    {
        events.push_back(std::string("ask ") + text);
        return Take(yes_no, false);
    }
    void ShowMessage(const char* text) override { events.push_back(std::string("message ") + text); }
    void SetDocumentTitle(const char* path) override { events.push_back(std::string("title ") + path); }
    void BeginWait() override { events.emplace_back("wait"); }
    void EndWait() override { events.emplace_back("ready"); }
    bool OnNewDocument() override
    {
        events.emplace_back("new document");
        return new_document;
    }
    void UpdateAllViews() override { events.emplace_back("update"); }
    std::string AskPath(const FileDialog& dialog) override
    {
        events.push_back(std::string(dialog.saving ? "save as " : "open ") + dialog.filter + " " +
                         dialog.default_extension + " [" + dialog.file_name + "]");
        return Take(paths, std::string());
    }
    bool AskQuickNew(QuickNewTexts& texts) override
    {
        events.push_back("quick new " + texts.title + "," + texts.aperture + "," + texts.focal_length);
        if (quick_new.empty()) {
            return false;
        }
        texts = Take(quick_new, QuickNewTexts{});
        return true;
    }
    bool AskRaytracingSettings(std::uint8_t miss_in_grey) override
    {
        events.push_back("settings " + std::to_string(miss_in_grey));
        return Take(settings, false);
    }
    bool RunModal(Modal modal) override
    {
        events.push_back("modal " + std::to_string(static_cast<int>(modal)));
        if (in_modal) {
            in_modal(modal);
        }
        return Take(modals, false);
    }

    void ShowStatus(const char* text) override { status = text; }
    std::optional<std::size_t> AskEarlierDesign(std::span<const RescueCopy> copies,
                                                std::optional<std::size_t> selected) override
    {
        events.push_back("earlier designs " + std::to_string(copies.size()) +
                         (selected ? " at " + std::to_string(*selected) : ""));
        return earlier;
    }

    /// The events since the last call.
    std::vector<std::string> Take() { return std::exchange(events, {}); }

private:
    template <typename T>
    static T Take(std::deque<T>& answers, T otherwise)
    {
        if (answers.empty()) {
            return otherwise;
        }
        T answer = answers.front();
        answers.pop_front();
        return answer;
    }
};
