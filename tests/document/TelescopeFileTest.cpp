#include "document/TelescopeFile.h"
#include "document/DesignFiles.h"
#include "document/XmlScanner.h"
#include "lib/text/Assertion.h"
#include "model/record/RecordFields.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cmath>
#include <limits>

namespace {

// Written out by hand, line by line, for a record of which nothing has been read.
constexpr const char* kUnreadFile = R"(<?xml version="1.0" encoding="ISO-8859-1" ?>
<!--  Created by Orreva 0.3.1
-->
<telescope>
  <title>Neues Teleskop</title>
  <description>Ein 08/15 Teleskop</description>
  <misc>
    <wanted_100percent_fow>1.#INF00</wanted_100percent_fow>
  </misc>
  <mirror>
    <focal_length>1.#INF00</focal_length>
    <diameter>1.#INF00</diameter>
    <thickness>1.#INF00</thickness>
    <material></material>
    <density>1.#INF00</density>
    <poisson>0.000000</poisson>
    <modulus>0.000000</modulus>
  </mirror>
  <tube>
    <type>-1</type>
    <distance_front>1.#INF00</distance_front>
    <distance_back>1.#INF00</distance_back>
    <inside_diameter_box>1.#INF00</inside_diameter_box>
    <inside_diameter_hat>1.#INF00</inside_diameter_hat>
    <thickness_box>1.#INF00</thickness_box>
    <thickness_hat>1.#INF00</thickness_hat>
    <height_box>1.#INF00</height_box>
    <height_hat>1.#INF00</height_hat>
  </tube>
  <focuser>
    <type>-1</type>
    <height>1.#INF00</height>
    <diameter>1.#INF00</diameter>
    <spare>1.#INF00</spare>
    <oaz_travel>1.#INF00</oaz_travel>
    <oaz_length>1.#INF00</oaz_length>
    <osch_travel>1.#INF00</osch_travel>
  </focuser>
  <secondary>
    <diameter>1.#INF00</diameter>
    <offset>1.#INF00</offset>
  </secondary>
  <weight>
    <mirror>1.#INF00</mirror>
    <cell>1.#INF00</cell>
    <box>1.#INF00</box>
    <truss>1.#INF00</truss>
    <hat>1.#INF00</hat>
    <secondary>1.#INF00</secondary>
    <eyepiece>1.#INF00</eyepiece>
    <finder>1.#INF00</finder>
    <misc>1.#INF00</misc>
  </weight>
  <balance>
    <mirror>1.#INF00</mirror>
    <cell>1.#INF00</cell>
    <box>1.#INF00</box>
    <truss>1.#INF00</truss>
    <hat>1.#INF00</hat>
    <secondary>1.#INF00</secondary>
    <eyepiece>1.#INF00</eyepiece>
    <finder>1.#INF00</finder>
    <misc>1.#INF00</misc>
  </balance>
  <tests>
    <artificial_star>
      <diameter>1.#INF00</diameter>
      <precision>1.#INF00</precision>
    </artificial_star>
    <matching_ronchi>
      <grating>1.#INF00</grating>
      <constant>1.#INF00</constant>
    </matching_ronchi>
  </tests>
</telescope>
)";

std::string Line(const std::string& bytes, const std::string& tag)
{
    const std::size_t at = bytes.find("<" + tag + ">");
    return at == std::string::npos ? "" : bytes.substr(at, bytes.find('\n', at) - at);
}

/// Reads the bytes into a record that knew nothing before.
void Read(const std::string& bytes, COrrevaData& data) { ReadTelescope(XmlScanner::FromText(bytes), data); }

TEST(TelescopeFile, AnUnreadRecordIsWrittenUnset)
{
    const COrrevaData data;
    EXPECT_EQ(kUnreadFile, WriteTelescope(data));
}

TEST(TelescopeFile, WritingComputesNothing)
{
    COrrevaData data;
    data.SetMirrorDiameter(200);
    WriteTelescope(data);
    EXPECT_EQ(HUGE_VAL, data.focal_length);
    EXPECT_EQ(-1, data.tube_type);
}

TEST(TelescopeFile, WhatIsNotFiniteHasTextsOfItsOwn)
{
    COrrevaData data;
    data.weight_cell = std::numeric_limits<double>::quiet_NaN();
    data.weight_box = -HUGE_VAL;
    data.weight_truss = -std::numeric_limits<double>::quiet_NaN();
    const std::string bytes = WriteTelescope(data);
    EXPECT_EQ("<cell>-1.#IND00</cell>", Line(bytes, "cell"));
    EXPECT_EQ("<box>-1.#INF00</box>", Line(bytes, "box"));
    EXPECT_EQ("<truss>-1.#IND00</truss>", Line(bytes, "truss"));

    COrrevaData back;
    Read(bytes, back);
    EXPECT_EQ(-1.0, back.weight_cell) << "the number stops at the #";
    EXPECT_EQ(-1.0, back.weight_box);
    EXPECT_EQ(HUGE_VAL, back.weight_hat) << "only a text that starts with 1.#INF is unset";
}

TEST(TelescopeFile, EveryFieldComesBack)
{
    COrrevaData data;
    double next = 1.5;
    for (const RecordField& field : RecordFields()) {
        if (const auto* real = std::get_if<RealField>(&field.field)) {
            data.*real->place = next;
            next += 1.25;
        }
    }
    data.title = "T\xF6pfers 8\"";
    data.description = "line one\nline two & more";
    data.material = "Duran 50";
    data.tube_type = 4;
    data.focuser_type = 2;
    COrrevaData back;
    Read(WriteTelescope(data), back);
    for (const RecordField& field : RecordFields()) {
        if (const auto* real = std::get_if<RealField>(&field.field)) {
            EXPECT_EQ(data.*real->place, back.*real->place) << field.key;
        }
    }
    EXPECT_STREQ("T\xF6pfers 8\"", back.title);
    EXPECT_STREQ("line one\nline two & more", back.description);
    EXPECT_STREQ("Duran 50", back.material);
    EXPECT_EQ(4, back.tube_type);
    EXPECT_EQ(2, back.focuser_type);
}

TEST(TelescopeFile, MissingKeysGiveZeroAndNotTheDefault)
{
    COrrevaData data;
    Read("<telescope><title>x</title></telescope>", data);
    EXPECT_STREQ("x", data.title);
    EXPECT_STREQ("", data.description);
    EXPECT_EQ(0, data.tube_type);
    EXPECT_EQ(0, data.focuser_type);
    EXPECT_EQ(0.0, data.mirror_diameter);
    EXPECT_EQ(0.0, data.GetStarDiameter()) << "and not 0.05";
}

TEST(TelescopeFile, NumbersAreReadTolerantly)
{
    const struct {
        const char* text;
        double value;
    } rows[] = {{"250,5", 250.5}, {"1,250,5", 1.25}, {"\t  7.5 mm", 7.5},     {"abc", 0},
                {"", 0},          {"1e3", 1000},     {"1.#INFxyz", HUGE_VAL}, {"0x10", 0},
                {"inf", 0},       {"nan", 0},        {"1e999", HUGE_VAL},     {"-3", -3}};
    for (const auto& row : rows) {
        COrrevaData data;
        Read(std::string("<telescope><mirror><diameter>") + row.text + "</diameter>", data);
        EXPECT_EQ(row.value, data.mirror_diameter) << row.text;
    }
}

TEST(TelescopeFile, TextsAreCutAtBracketsAndAt1023Bytes)
{
    COrrevaData data;
    data.SetTitle("f<5");
    data.SetDescription(std::string(2000, 'd').c_str());
    COrrevaData back;
    Read(WriteTelescope(data), back);
    EXPECT_STREQ("f", back.title);
    EXPECT_EQ(std::string(1023, 'd'), back.description.GetText());
}

TEST(TelescopeFile, ATitleWithATagRedirectsTheKeys)
{
    COrrevaData data;
    data.SetTitle("about <mirror");
    data.mirror_diameter = 200;
    data.focal_length = 1200;
    data.secondary_diameter = 50;
    COrrevaData back;
    Read(WriteTelescope(data), back);
    EXPECT_EQ(200, back.mirror_diameter) << "still the first diameter behind the title";
    EXPECT_EQ(1200, back.focal_length);

    std::string bytes = WriteTelescope(data);
    bytes.insert(bytes.find("  <misc>"), "<diameter>7</diameter>");
    Read(bytes, back);
    EXPECT_EQ(7, back.mirror_diameter) << "the walk goes on behind the title";
}

TEST(TelescopeFile, WeightsBeforeTheSecondaryLeadItsKeysAstray)
{
    // The walk knows no nesting: the first "secondary" is a weight, and the next diameter the focuser's.
    const std::string weight = "<weight><mirror>1000</mirror><secondary>200</secondary></weight>";
    const std::string focuser = "<focuser><height>60</height><diameter>50</diameter></focuser>";
    const std::string secondary = "<secondary><diameter>46</diameter><offset>3</offset></secondary>";
    COrrevaData data;
    Read("<telescope>" + weight + focuser + secondary + "</telescope>", data);
    EXPECT_EQ(50, data.secondary_diameter);
    EXPECT_EQ(3, data.secondary_offset);
    EXPECT_EQ(200, data.weight_secondary);
    EXPECT_EQ(50, data.focuser_diameter);

    Read("<telescope>" + focuser + weight + secondary + "</telescope>", data);
    EXPECT_EQ(46, data.secondary_diameter);
    EXPECT_EQ(200, data.weight_secondary);
    Read("<telescope>" + focuser + secondary + weight + "</telescope>", data);
    EXPECT_EQ(46, data.secondary_diameter);
    EXPECT_EQ(200, data.weight_secondary) << "the secondary of the weights, which come later";
}

TEST(TelescopeFile, ATitleAbove1023BytesIsWrittenWholeAndReadCut)
{
    for (const std::size_t length : {1022u, 1023u, 1024u, 5000u}) {
        COrrevaData data;
        data.SetTitle(std::string(length, 't').c_str());
        data.SetMirrorDiameter(200);
        EXPECT_EQ("<title>" + std::string(length, 't') + "</title>", Line(WriteTelescope(data), "title"));
        COrrevaData back;
        Read(WriteTelescope(data), back);
        EXPECT_EQ(std::string(std::min<std::size_t>(length, 1023), 't'), back.title.GetText());
        EXPECT_EQ(200, back.mirror_diameter) << "and nothing behind it is lost";
    }
}

TEST(TelescopeFile, CarriageReturnsBeforeLineFeedsAreNoPartOfTheText)
{
    COrrevaData data;
    Read("<telescope>\r\n<description>a\r\nb\rc</description>\r\n", data);
    EXPECT_STREQ("a\nb\rc", data.description);
}

TEST(TelescopeFile, AZeroByteEndsTheText)
{
    COrrevaData data;
    Read(std::string("<telescope><title>ab\0cd</title><description>x</description>", 60), data);
    EXPECT_STREQ("ab", data.title);
    EXPECT_STREQ("", data.description);
}

// Through files --------------------------------------------------------------------------------------------

TEST(TelescopeFile, SaveWritesAndClearsModified)
{
    const TemporaryFolder folder;
    DesignFiles files;
    COrrevaData data(nullptr, &files);
    data.Reset();
    data.SetModified(1);
    EXPECT_EQ(0, data.Save());
    EXPECT_EQ(0, data.IsModified());
    EXPECT_EQ(kUnreadFile, folder.Read("noname.orreva.xml"));
}

TEST(TelescopeFile, SaveAsTakesPathAndTitle)
{
    const TemporaryFolder folder;
    RecordingHost host;
    DesignFiles files;
    COrrevaData data(&host, &files);
    host.Take();
    EXPECT_EQ(0, data.SaveAs("mine.orreva.xml"));
    EXPECT_STREQ("mine.orreva.xml", data.file_path);
    EXPECT_EQ(std::vector<std::string>{"title mine.orreva.xml"}, host.Take());
    EXPECT_FALSE(folder.Read("mine.orreva.xml").empty());
}

TEST(TelescopeFile, AFailedSaveIsSilentAndLeavesEverything)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory("folder");
    folder.Write("kept", "old bytes");
    RecordingHost host;
    DesignFiles files;
    COrrevaData data(&host, &files);
    for (const char* path : {"folder", "missing/x.orreva.xml", "/dev/full"}) {
        data.file_path = path;
        data.SetModified(1);
        host.Take();
        EXPECT_EQ(1, data.Save()) << path;
        EXPECT_EQ(1, data.IsModified()) << path;
        EXPECT_TRUE(host.Take().empty()) << path;
    }
    EXPECT_EQ("old bytes", folder.Read("kept"));
}

class Answer : public AssertDesktop {
public:
    AssertAnswer AskAssert(const char*, const char* text) override
    {
        texts.emplace_back(text);
        return AssertAnswer::Ignore;
    }
    void CloseMainWindow() override {}
    void BreakIntoDebugger() override {}
    void FatalAppExit(const char*) override {}
    std::vector<std::string> texts;
};

TEST(TelescopeFile, SavingWithoutAPathFailsByAssertion)
{
    Answer answer;
    AssertDesktop* const before = SetAssertDesktop(&answer);
    DesignFiles files;
    COrrevaData data(nullptr, &files);
    EXPECT_EQ(1, data.Save());
    EXPECT_EQ(1, data.SaveAs(""));
    SetAssertDesktop(before);
    ASSERT_EQ(2u, answer.texts.size());
    EXPECT_EQ(0u, answer.texts[0].find("Assert(pfn != NULL);\nFile OrrevaDoc, line "));
    EXPECT_EQ(0u, answer.texts[1].find("Assert(strlen(pfn) > 0);\nFile OrrevaDoc, line "));
}

TEST(TelescopeFile, LoadOfAMissingFileTellsTheRecordsOwnPathAndClears)
{
    const TemporaryFolder folder;
    RecordingHost host;
    DesignFiles files;
    COrrevaData data(&host, &files);
    data.Reset();
    host.Take();
    EXPECT_EQ(1, data.Load("missing.orreva.xml"));
    const std::vector<std::string> expected{"wait", "message Die Datei noname.orreva.xml existiert nicht!",
                                            "title noname.orreva.xml", "title ", "ready"};
    EXPECT_EQ(expected, host.Take());
    EXPECT_FALSE(data.HasFile());
    EXPECT_EQ(1, data.Load(nullptr));
}

TEST(TelescopeFile, LoadTakesPathTitleAndValues)
{
    const TemporaryFolder folder;
    folder.Write("a.orreva.xml",
                 "<telescope><title>A</title><mirror><diameter>150</diameter></mirror></telescope>");
    RecordingHost host;
    DesignFiles files;
    COrrevaData data(&host, &files);
    data.SetModified(1);
    host.Take();
    EXPECT_EQ(0, data.Load("a.orreva.xml"));
    EXPECT_EQ((std::vector<std::string>{"wait", "title a.orreva.xml", "ready"}), host.Take());
    EXPECT_STREQ("A", data.title);
    EXPECT_EQ(150, data.mirror_diameter);
    EXPECT_EQ(0, data.IsModified());
    EXPECT_STREQ("a.orreva.xml", data.file_path);
}

TEST(TelescopeFile, LoadTakesTheRecordsOwnPath)
{
    const TemporaryFolder folder;
    folder.Write("a telescope whose name is longer than a short string.orreva.xml",
                 "<telescope><title>A</title><mirror><diameter>150</diameter></mirror></telescope>");
    DesignFiles files;
    COrrevaData data(nullptr, &files);
    data.file_path = "a telescope whose name is longer than a short string.orreva.xml";
    EXPECT_EQ(0, data.Load(data.file_path));
    EXPECT_EQ(150, data.mirror_diameter);
    EXPECT_STREQ("a telescope whose name is longer than a short string.orreva.xml", data.file_path);
}

TEST(TelescopeFile, WhatExistsButCannotBeReadGivesZerosAndSucceeds)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory("folder");
    DesignFiles files;
    COrrevaData data(nullptr, &files);
    EXPECT_EQ(0, data.Load("folder"));
    EXPECT_EQ(0, data.mirror_diameter);
    EXPECT_EQ(0, data.tube_type);
    EXPECT_EQ(0, data.focuser_type);
    EXPECT_STREQ("", data.title);
}

TEST(TelescopeFile, SurvivesOddFiles)
{
    const TemporaryFolder folder;
    const std::string head = "<telescope><mirror>";
    const std::string files[] = {"",
                                 "<",
                                 "<telescope",
                                 std::string(1 << 20, '<'),
                                 head + std::string(1 << 20, 'x'),
                                 head + "<diameter",
                                 std::string("\x00\xFF\xFE<telescope", 14)};
    for (const std::string& bytes : files) {
        folder.Write("odd", bytes);
        DesignFiles designs;
        COrrevaData data(nullptr, &designs);
        EXPECT_EQ(0, data.Load("odd"));
        EXPECT_EQ(0, data.mirror_diameter);
    }
}

} // namespace
