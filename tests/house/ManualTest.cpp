// The manual has a place for each command of the program, by its name in the menu.

#include "document/Commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string ReadAll(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// All pages of the menus, in one text without line ends, so that a name may stand across two lines.
std::string MenuPages(const char* language)
{
    std::string pages;
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(fs::path(ORREVA_SOURCE_DIR) / "docs/manual" / language)) {
        if (entry.path().filename().string().starts_with("Befehle_")) {
            pages += ReadAll(entry.path());
        }
    }
    return std::regex_replace(pages, std::regex("\\s+"), " ");
}

/// The name as a reader sees it: without accelerator, mnemonic and dots.
std::string PlainName(std::string name)
{
    name = name.substr(0, name.find('\t'));
    name = std::regex_replace(name, std::regex("&amp;"), "");
    name = std::regex_replace(name, std::regex(" ?\\.\\.\\.$"), "");
    return std::regex_replace(name, std::regex("\\s+$"), "");
}

struct MenuCommand {
    std::int32_t id;
    std::string text;
};

/// The commands of the main window's form, with their texts in English.
std::vector<MenuCommand> MenuCommands()
{
    static const std::regex kId("\"commandId\"[^>]*>\\s*<number>([0-9]+)");
    static const std::regex kText("name=\"text\">\\s*<string[^>]*>([^<]*)");
    const std::string form = ReadAll(fs::path(ORREVA_SOURCE_DIR) / "res/MainFrame.ui");
    std::vector<MenuCommand> commands;
    for (std::size_t from = form.find("<action name="); from != std::string::npos;
         from = form.find("<action name=", from + 1)) {
        const std::string whole = form.substr(from, form.find("</action>", from) - from);
        std::smatch id;
        std::smatch text;
        if (std::regex_search(whole, id, kId) && std::regex_search(whole, text, kText)) {
            commands.push_back({std::stoi(id[1]), text[1]});
        }
    }
    return commands;
}

/// The German of a menu's text; the text itself where the form has no other.
std::string GermanOf(const std::string& text)
{
    static const std::string kTexts = ReadAll(fs::path(ORREVA_SOURCE_DIR) / "res/de/MainFrame.ts");
    const std::size_t source = kTexts.find("<source>" + text + "</source>");
    if (source == std::string::npos) {
        return text;
    }
    const std::size_t from = kTexts.find("<translation>", source) + 13;
    return kTexts.substr(from, kTexts.find("</translation>", from) - from);
}

TEST(Manual, HasAPlaceForEachCommand)
{
    const std::string english = MenuPages("en");
    const std::string german = MenuPages("de");
    const std::vector<MenuCommand> commands = MenuCommands();
    int shown = 0;
    for (const MenuCommand& command : commands) {
        if (FindCommand(command.id) == nullptr || command.id == command_id::kRecentFile) {
            continue; // no menu shows them
        }
        ++shown;
        EXPECT_NE(std::string::npos, english.find(PlainName(command.text))) << command.text;
        EXPECT_NE(std::string::npos, german.find(PlainName(GermanOf(command.text))))
            << GermanOf(command.text);
    }
    EXPECT_GT(shown, 40);
}

} // namespace
