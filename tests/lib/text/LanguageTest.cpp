#include "lib/text/Language.h"
#include "lib/text/CodePage.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

TEST(Bilingual, ChoosesByTheLanguageGiven)
{
    constexpr Bilingual text{"Open", "Öffnen"_cp1252};
    EXPECT_STREQ("Open", text.In(kEnglish));
    EXPECT_STREQ("\xD6"
                 "ffnen",
                 text.In(kGerman));
}

TEST(CodePage, RoundTripsEveryByte)
{
    for (int byte = 1; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        EXPECT_EQ(one, Cp1252FromUtf8(Utf8FromCp1252(one))) << byte;
    }
}

TEST(CodePage, WritesWhatItCannotHoldAsAQuestionMark)
{
    EXPECT_EQ("f\xFC"
              "r 5 \x80 ?",
              Cp1252FromUtf8("für 5 € Ω"));
    EXPECT_EQ("?", Cp1252FromUtf8("\xFF"));
    EXPECT_EQ("a?b", Cp1252FromUtf8("a\xC3"
                                    "b"));
    EXPECT_EQ("a?b", Cp1252FromUtf8(std::string_view("a\0b", 3))) << "texts end at a byte of 0";
    EXPECT_EQ("???", Cp1252FromUtf8("\xED\xA0\x80")) << "a surrogate is no character";
    EXPECT_EQ("??", Cp1252FromUtf8("\xC0\xAF")) << "an overlong form is no UTF-8";
}

} // namespace
