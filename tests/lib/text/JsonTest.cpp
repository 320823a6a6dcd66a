#include "lib/text/Json.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

std::string Quoted(std::string_view text)
{
    std::string out;
    AppendJsonText(out, text);
    return out;
}

TEST(Json, EscapesWhatAStringCannotHold)
{
    EXPECT_EQ("\"\"", Quoted(""));
    EXPECT_EQ("\"a\\\"b\\\\c/\"", Quoted("a\"b\\c/"));
    EXPECT_EQ("\"\\n\\r\\t\\b\\f\"", Quoted("\n\r\t\b\f"));
    EXPECT_EQ("\"\\u0001\\u001f \\u0000\"", Quoted(std::string_view("\x01\x1f \0", 4)));
    EXPECT_EQ("\"\x7f\"", Quoted("\x7f"));
}

TEST(Json, KeepsUtf8AndNothingThatIsNone)
{
    EXPECT_EQ("\"5° “€” \xF0\x9F\x94\xAD\"", Quoted("5° “€” \xF0\x9F\x94\xAD"));
    EXPECT_EQ("\"a??b\"", Quoted("a\xC3\xFF"
                                 "b"));
    EXPECT_EQ("\"?\"", Quoted("\xB0"));
}

TEST(Json, AnEmptyBracketStandsOnOneLine)
{
    std::string out;
    JsonWriter json(out);
    json.BeginArray();
    json.EndArray();
    EXPECT_EQ("[]\n", out);
}

TEST(Json, IndentsByTwoBlanks)
{
    std::string out;
    JsonWriter json(out);
    json.BeginObject();
    json.Key("rows");
    json.BeginArray();
    json.BeginArray();
    json.Text("a");
    json.Number(0.1);
    json.EndArray();
    json.BeginObject();
    json.EndObject();
    json.EndArray();
    json.Key("nan");
    json.Number(NAN);
    json.Key("low");
    json.Number(-HUGE_VAL);
    json.EndObject();
    EXPECT_EQ("{\n"
              "  \"rows\": [\n"
              "    [\n"
              "      \"a\",\n"
              "      0.1\n"
              "    ],\n"
              "    {}\n"
              "  ],\n"
              "  \"nan\": null,\n"
              "  \"low\": null\n"
              "}\n",
              out);
}

} // namespace
