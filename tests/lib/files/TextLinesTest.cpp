#include "lib/files/TextLines.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File FileOf(std::string_view bytes)
{
    File file(std::tmpfile());
    EXPECT_EQ(bytes.size(), std::fwrite(bytes.data(), 1, bytes.size(), file.get()));
    std::rewind(file.get());
    return file;
}

std::vector<std::string> Lines(std::string_view bytes, int nSize = 100)
{
    const File file = FileOf(bytes);
    std::vector<std::string> lines;
    std::string target(static_cast<std::size_t>(nSize), 'x');
    while (lines.size() < 1000 && ReadTextLine(target.data(), nSize, file.get()) != nullptr) {
        lines.emplace_back(target.c_str());
    }
    EXPECT_EQ('\0', target[0]) << "empty behind the last line";
    return lines;
}

using Texts = std::vector<std::string>;

TEST(ReadTextLine, GivesEachLineWithItsEnd)
{
    EXPECT_EQ((Texts{"one\n", "\n", "three\n"}), Lines("one\n\nthree\n"));
    EXPECT_EQ((Texts{"one\n", "two"}), Lines("one\ntwo"));
    EXPECT_EQ(Texts{}, Lines(""));
}

TEST(ReadTextLine, TakesTheTwoCharactersOfAForeignEndForOne)
{
    EXPECT_EQ((Texts{"one\n", "\n", "two\n"}), Lines("one\r\n\r\ntwo\r\n"));
    EXPECT_EQ((Texts{"a\rb\n", "\r\n", "c\r"}), Lines("a\rb\n\r\r\nc\r")) << "a CR alone is a character";
}

TEST(ReadTextLine, AZeroByteInsideALineEndsTheFileThere)
{
    using namespace std::string_view_literals;
    EXPECT_EQ((Texts{"one\n", "tw"}), Lines("one\ntw\0o\nthree\n"sv));
    EXPECT_EQ((Texts{"one\n"}), Lines("one\n\0two\n"sv));
    EXPECT_EQ(Texts{}, Lines("\0one\n"sv));
    EXPECT_EQ((Texts{"one\r"}), Lines("one\r\0\n"sv)) << "also behind a CR";
}

TEST(ReadTextLine, CutsALineAtTheSizeAndGoesOnThere)
{
    EXPECT_EQ((Texts{"abc", "def", "\n", "g\n"}), Lines("abcdef\ng\n", 4));
    EXPECT_EQ((Texts{"abc", "\n", "d"}), Lines("abc\r\nd", 4)) << "the end is one character";
    EXPECT_EQ((Texts{"a", "\n"}), Lines("a\r\n", 2));
}

} // namespace
