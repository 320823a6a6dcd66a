// Finds texts without German: those of the forms and sources that the toolkit translates, and those that code
// writes.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kTop = ORREVA_SOURCE_DIR;

std::string ReadAll(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> FilesOf(const fs::path& folder, std::initializer_list<std::string_view> endings)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (std::ranges::find(endings, entry.path().extension().string()) != endings.end()) {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);
    return files;
}

// Texts that the toolkit translates ----------------------------------------------------------------------

/// Context, text and comment, as they stand in XML.
using Text = std::tuple<std::string, std::string, std::string>;

std::vector<std::smatch> AllMatches(const std::string& text, const std::regex& pattern)
{
    return {std::sregex_iterator(text.begin(), text.end(), pattern), std::sregex_iterator()};
}

/// The pieces of a text from each `open` to the `close` behind it, both included.
std::vector<std::string> Pieces(const std::string& text, std::string_view open, std::string_view close)
{
    std::vector<std::string> pieces;
    for (std::size_t from = text.find(open); from != std::string::npos; from = text.find(open, from + 1)) {
        const std::size_t end = text.find(close, from);
        pieces.push_back(text.substr(from, end == std::string::npos ? end : end + close.size() - from));
    }
    return pieces;
}

/// The first element of that name, nothing if there is none.
std::string Element(const std::string& xml, const std::string& name)
{
    const std::size_t begin = xml.find('<' + name + '>');
    const std::size_t from = begin + name.size() + 2;
    const std::size_t end = xml.find("</" + name + '>');
    return begin == std::string::npos || end == std::string::npos ? "" : xml.substr(from, end - from);
}

/// The text that XML stands for.
std::string Unescaped(std::string text)
{
    const std::pair<std::string_view, std::string_view> signs[] = {
        {"&#10;", "\n"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}};
    for (const auto& [xml, plain] : signs) {
        for (std::size_t at = 0; (at = text.find(xml, at)) != std::string::npos; at += plain.size()) {
            text.replace(at, xml.size(), plain);
        }
    }
    return text;
}

/// The texts that one file of translations has in German. A translation that is unfinished is none.
void AddTranslated(std::set<Text>& texts, const std::string& file)
{
    for (const std::string& context : Pieces(file, "<context>", "</context>")) {
        for (const std::string& message : Pieces(context, "<message", "</message>")) {
            if (!Element(message, "translation").empty()) {
                texts.insert({Element(context, "name"), Unescaped(Element(message, "source")),
                              Unescaped(Element(message, "comment"))});
            }
        }
    }
}

/// The texts of a form, but for those that are marked as not to be translated.
std::vector<Text> TextsOfForm(const std::string& form)
{
    static const std::regex kString("<string([^>/]*)>([^<]+)</string>");
    static const std::regex kComment("comment=\"([^\"]*)\"");
    std::vector<Text> texts;
    const std::string context = Element(form, "class");
    for (const std::smatch& match : AllMatches(form, kString)) {
        const std::string words = match[1];
        std::smatch comment;
        if (words.find("notr=\"true\"") == std::string::npos) {
            const bool has = std::regex_search(words, comment, kComment);
            texts.push_back({context, Unescaped(match[2]), has ? comment[1].str() : ""});
        }
    }
    return texts;
}

std::set<Text> TranslatedTexts()
{
    std::set<Text> texts;
    for (const fs::path& file : FilesOf(kTop / "res/de", {".ts"})) {
        AddTranslated(texts, ReadAll(file));
    }
    return texts;
}

TEST(German, EachTextOfAFormHasIt)
{
    const std::set<Text> translated = TranslatedTexts();
    int looked = 0;
    for (const fs::path& form : FilesOf(kTop / "res", {".ui"})) {
        for (const Text& text : TextsOfForm(ReadAll(form))) {
            ++looked;
            EXPECT_TRUE(translated.contains(text))
                << form.filename() << ": " << std::get<1>(text) << " (" << std::get<2>(text) << ')';
        }
    }
    EXPECT_GT(looked, 150);
}

TEST(German, EachTextThatASourceGivesToTheToolkitHasIt)
{
    // The context is the class; QT_TRANSLATE_NOOP names it. Texts of foreign classes (QFileDialog::tr) are
    // theirs.
    static const std::regex kTr(
        "[^:A-Za-z_]tr\\(\"([^\"]+)\"\\)|QT_TRANSLATE_NOOP\\(\"[^\"]+\", \"([^\"]+)\"\\)");
    std::set<std::string> translated;
    for (const Text& text : TranslatedTexts()) {
        translated.insert(std::get<1>(text));
    }
    int looked = 0;
    for (const fs::path& source : FilesOf(kTop / "src", {".cpp", ".h"})) {
        const std::string text = ReadAll(source);
        for (const std::smatch& match : AllMatches(text, kTr)) {
            ++looked;
            const std::string word = match[1].matched ? match[1] : match[2];
            EXPECT_TRUE(translated.contains(word)) << source.filename() << ": " << word;
        }
    }
    EXPECT_GT(looked, 20);
}

TEST(German, NoTranslationIsUnfinishedOrLeftOver)
{
    for (const fs::path& file : FilesOf(kTop / "res/de", {".ts"})) {
        const std::string text = ReadAll(file);
        for (const char* const mark : {"type=\"unfinished\"", "type=\"vanished\"", "type=\"obsolete\""}) {
            EXPECT_EQ(std::string::npos, text.find(mark)) << file.filename() << ' ' << mark;
        }
    }
}

// Texts that code writes ---------------------------------------------------------------------------------

/// Takes a literal off the front of `code`, with those that follow it directly; nothing if there is none.
std::optional<std::string> TakeLiteral(std::string_view& code)
{
    const auto skipBlanks = [&] {
        code.remove_prefix(std::min(code.find_first_not_of(" \t\n"), code.size()));
    };
    skipBlanks();
    if (!code.starts_with('"')) {
        return std::nullopt;
    }
    std::string text;
    while (code.starts_with('"')) {
        std::size_t end = 1;
        while (end < code.size() && code[end] != '"') {
            end += code[end] == '\\' ? std::size_t{2} : std::size_t{1};
        }
        text += code.substr(1, end - 1);
        code.remove_prefix(std::min(end + 1, code.size()));
        if (code.starts_with("_cp1252")) {
            code.remove_prefix(7);
        }
        skipBlanks();
    }
    return text;
}

/// What is wrong with the pairs of texts in a declaration: English texts behind whose comma no German stands.
std::vector<std::string> WithoutGerman(std::string_view declaration, int& looked)
{
    std::vector<std::string> faults;
    while (!declaration.empty()) {
        const std::size_t brace = declaration.find_first_of("{\"");
        if (brace == std::string_view::npos) {
            break;
        }
        declaration.remove_prefix(brace + (declaration[brace] == '{' ? 1 : 0));
        const auto english = TakeLiteral(declaration);
        if (!english) {
            continue;
        }
        ++looked;
        std::optional<std::string> german;
        if (declaration.starts_with(',')) {
            declaration.remove_prefix(1);
            german = TakeLiteral(declaration);
        }
        if (!english->empty() && (!german || german->empty())) {
            faults.push_back(*english);
        }
    }
    return faults;
}

/// The texts of both languages that a source declares, each from its first brace to its last.
std::vector<std::string> Declarations(const std::string& source)
{
    // Constants, and rows that are made where they are needed.
    static const std::regex kBilingual("Bilingual k[A-Za-z]+(\\[[^\\]]*\\])? ?=? ?\\{|\\.Add\\(\\{");
    std::vector<std::string> declarations;
    for (const std::smatch& match : AllMatches(source, kBilingual)) {
        const auto from = static_cast<std::size_t>(match.position() + match.length() - 1);
        const char* const end = match.str().starts_with('.') ? "}" : "};";
        declarations.push_back(source.substr(from, source.find(end, from) - from + 1));
    }
    return declarations;
}

TEST(German, EachTextThatCodeWritesHasIt)
{
    int looked = 0;
    for (const fs::path& source : FilesOf(kTop / "src", {".cpp", ".h"})) {
        for (const std::string& declaration : Declarations(ReadAll(source))) {
            for (const std::string& text : WithoutGerman(declaration, looked)) {
                ADD_FAILURE() << source.filename() << ": " << text;
            }
        }
    }
    EXPECT_GT(looked, 150);
}

TEST(German, ATextWithoutItIsFound)
{
    std::set<Text> translated;
    AddTranslated(translated, "<context><name>A</name><message><source>x</source><comment>c</comment>"
                              "<translation>ix</translation></message><message><source>y</source>"
                              "<translation type=\"unfinished\"></translation></message></context>");
    EXPECT_EQ((std::set<Text>{{"A", "x", "c"}}), translated);
    EXPECT_EQ((std::vector<Text>{{"A", "x", "c"}, {"A", "y", ""}}),
              TextsOfForm("<class>A</class><string comment=\"c\">x</string><string>y</string>"
                          "<string notr=\"true\">z</string>"));

    int looked = 0;
    const std::string source =
        "constexpr Bilingual kA{\"a\", \"\"};\nBilingual kB[] = {{\"b\" \"c\", \"d\"_cp1252}, "
        "{\"e\"}};\nrows.Add({\"f\", \"\"}, \"x\");";
    ASSERT_EQ(3u, Declarations(source).size());
    EXPECT_EQ((std::vector<std::string>{"a"}), WithoutGerman(Declarations(source)[0], looked));
    EXPECT_EQ((std::vector<std::string>{"e"}), WithoutGerman(Declarations(source)[1], looked));
    EXPECT_EQ((std::vector<std::string>{"f"}), WithoutGerman(Declarations(source)[2], looked));
    EXPECT_EQ(4, looked);
}

} // namespace
