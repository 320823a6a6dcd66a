#include "document/WhatIfBar.h"

#include "lib/text/LogSink.h"
#include "model/analysis/Primary.h"
#include "model/analysis/Secondary.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

class WhatIfBar : public testing::Test {
protected:
    WhatIfBar()
    {
        doc.main_record.Reset();
        doc.Recalculate();
        doc.main_record.SetModified(0);
        host.Take();
    }

    static void ExpectState(const std::optional<SliderState>& state, int low, int high,
                            std::optional<int> position)
    {
        ASSERT_TRUE(state.has_value());
        EXPECT_EQ(low, state->low);
        EXPECT_EQ(high, state->high);
        EXPECT_EQ(position, state->position);
    }

    RecordingHost host;
    COrrevaDoc doc{host};
    COrrevaData& data = doc.main_record;
};

TEST_F(WhatIfBar, OffersSevenParametersInGerman)
{
    const char* const texts[] = {"Brennweite",
                                 "Hauptspiegeldurchmesser",
                                 "Fangspiegeldurchmesser",
                                 "Tubusdurchmesser",
                                 "OAZ-Durchmesser",
                                 "OAZ-H\xF6he",
                                 "OAZ-Extra H\xF6he f\xFCr Zubeh\xF6r"};
    ASSERT_EQ(std::size(texts), BarParameters().size());
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        EXPECT_STREQ(texts[i], BarParameters()[i].text);
    }
}

TEST_F(WhatIfBar, EachParameterHasItsOwnAccessors)
{
    double COrrevaData::*const places[] = {
        &COrrevaData::focal_length,        &COrrevaData::mirror_diameter,  &COrrevaData::secondary_diameter,
        &COrrevaData::inside_diameter_hat, &COrrevaData::focuser_diameter, &COrrevaData::focuser_height,
        &COrrevaData::focuser_spare};
    for (int i = 0; i < 7; ++i) {
        SelectBarParameter(doc, i);
        const double before = doc.bar_params[static_cast<std::size_t>(i)].value;
        SlideBar(doc, 77);
        EXPECT_EQ(77.0, data.*places[i]) << i;
        ResetBar(doc);
        EXPECT_EQ(before, data.*places[i]) << i;
    }
}

std::string g_lastLine;

TEST_F(WhatIfBar, SelectionCentresTheSliderWithoutRecomputing)
{
    const LogSink before = SetLogSink([](const char* psz) { g_lastLine = psz; });
    ExpectState(SelectBarParameter(doc, 0), 750, 3000, 1500);
    SetLogSink(before);
    EXPECT_EQ("Sel: 0", g_lastLine);
    EXPECT_EQ(1, doc.bar_params[0].selected);
    EXPECT_EQ(1500.0, doc.bar_params[0].value);
    EXPECT_TRUE(host.Take().empty());
}

TEST_F(WhatIfBar, SlidingWritesWholeMillimetresAndRefreshesTwice)
{
    SelectBarParameter(doc, 2);
    SlideBar(doc, 47);
    EXPECT_EQ(47.0, data.secondary_diameter);
    EXPECT_EQ((std::vector<std::string>{"update", "update"}), host.Take());
    EXPECT_EQ(1, data.IsModified());
}

TEST_F(WhatIfBar, TakesAValueBetweenTheSlidersPlaces)
{
    TryBarValue(doc, 54.356, 54);
    EXPECT_TRUE(host.Take().empty()) << "nothing is under trial";
    SelectBarParameter(doc, 2);
    TryBarValue(doc, 54.356, 54);
    EXPECT_EQ(54.356, data.secondary_diameter);
    host.Take();
    SlideBar(doc, 54); // the slider's repaint
    EXPECT_EQ(54.356, data.secondary_diameter);
    ResetBar(doc);
    EXPECT_EQ(46.482, data.GetSecondaryDiameter());
}

TEST_F(WhatIfBar, AnotherSelectionUndoesTheTrial)
{
    SelectBarParameter(doc, 2);
    SlideBar(doc, 60);
    SelectBarParameter(doc, 5);
    EXPECT_DOUBLE_EQ(46.482, data.secondary_diameter);
    EXPECT_EQ(0, doc.bar_params[2].selected);
    EXPECT_EQ(1, doc.bar_params[5].selected);
}

TEST_F(WhatIfBar, ASelectionOfNothingEndsTheTrial)
{
    SelectBarParameter(doc, 2);
    SlideBar(doc, 60);
    for (const int selection : {-1, 7, 32, 1000}) {
        EXPECT_FALSE(SelectBarParameter(doc, selection).has_value());
    }
    EXPECT_DOUBLE_EQ(46.482, data.secondary_diameter);
    host.Take();
    SlideBar(doc, 50);
    EXPECT_FALSE(ResetBar(doc).has_value());
    EXPECT_FALSE(AcceptBar(doc).has_value());
    EXPECT_DOUBLE_EQ(46.482, data.secondary_diameter);
    EXPECT_TRUE(host.Take().empty());
}

TEST_F(WhatIfBar, ResetRestoresCentresAndRefreshes)
{
    SelectBarParameter(doc, 2);
    SlideBar(doc, 60);
    host.Take();
    ExpectState(ResetBar(doc), 23, 92, 46);
    EXPECT_EQ(46.482, data.secondary_diameter);
    EXPECT_EQ((std::vector<std::string>{"update", "update"}), host.Take());
    SlideBar(doc, 46);
    EXPECT_EQ(46.482, data.secondary_diameter) << "the slider stands there: a repaint is no move";
}

TEST_F(WhatIfBar, ARepaintWithoutAMoveWritesNothing)
{
    SelectBarParameter(doc, 2);
    SlideBar(doc, 46);
    EXPECT_EQ(46.482, data.secondary_diameter);
    EXPECT_EQ(0, data.IsModified());
    EXPECT_TRUE(host.Take().empty());
    SlideBar(doc, 47);
    EXPECT_EQ(47.0, data.secondary_diameter);
    host.Take();
    SlideBar(doc, 47);
    EXPECT_TRUE(host.Take().empty());
    SlideBar(doc, 46);
    EXPECT_EQ(46.0, data.secondary_diameter) << "back at the old place it is a move";
}

TEST_F(WhatIfBar, ATrialTakenBackLeavesWhatTheBuilderEntered)
{
    data.SetSecondaryOffset(5.0);
    data.SetWeightMirror(4321.0);
    for (const bool escape : {true, false}) {
        data.SetModified(0);
        SelectBarParameter(doc, 0);
        SlideBar(doc, 2000);
        EXPECT_NE(5.0, data.GetSecondaryOffset());
        if (escape) {
            CancelBar(doc);
        } else {
            SelectBarParameter(doc, 1);
        }
        EXPECT_EQ(1500.0, data.focal_length);
        EXPECT_EQ(5.0, data.GetSecondaryOffset());
        EXPECT_EQ(4321.0, data.GetWeightMirror());
        EXPECT_EQ(0, data.IsModified()) << "it is the file's telescope again";
        CancelBar(doc);
    }
}

TEST_F(WhatIfBar, ATrialThatWasSavedAndIsTakenBackDiffersFromTheFile)
{
    const TemporaryFolder folder;
    data.file_path = "scope.orreva.xml";
    SelectBarParameter(doc, 0);
    SlideBar(doc, 2000);
    doc.OnFileSave();
    EXPECT_EQ(0, data.IsModified());
    CancelBar(doc);
    EXPECT_EQ(1, data.IsModified());
}

TEST_F(WhatIfBar, CancelEndsTheTrialAndRefreshes)
{
    SelectBarParameter(doc, 2);
    SlideBar(doc, 60);
    host.Take();
    CancelBar(doc);
    EXPECT_EQ(46.482, data.secondary_diameter);
    EXPECT_FALSE(TrialAmong(doc.bar_params).has_value());
    EXPECT_FALSE(host.Take().empty());
    SlideBar(doc, 50);
    EXPECT_EQ(46.482, data.secondary_diameter);
}

TEST_F(WhatIfBar, ASheetThatStoresTheParameterEndsTheTrialAndKeepsItsValue)
{
    SelectBarParameter(doc, 0);
    SlideBar(doc, 1480);
    StoreNumber(data, kPrimaryThickness, "30");
    EXPECT_EQ(0, TrialAmong(doc.bar_params)) << "another number";
    StoreNumber(data, kPrimaryFocalLength, "1480.00");
    EXPECT_FALSE(TrialAmong(doc.bar_params).has_value());
    EXPECT_EQ(1480.0, data.focal_length);
    SelectBarParameter(doc, 1);
    EXPECT_EQ(1480.0, data.focal_length);
}

TEST_F(WhatIfBar, WhatASheetStoredMeanwhileIsNotTakenBackWithTheTrial)
{
    SelectBarParameter(doc, 0);
    SlideBar(doc, 1480);
    StoreNumber(data, kPrimaryThickness, "30");
    CancelBar(doc);
    EXPECT_EQ(1500.0, data.focal_length);
    EXPECT_EQ(30.0, data.mirror_thickness);
}

TEST_F(WhatIfBar, AResetInASheetStoresToo)
{
    SelectBarParameter(doc, 2);
    SlideBar(doc, 60);
    ResetNumber(data, kSecondaryMinorAxis);
    EXPECT_FALSE(TrialAmong(doc.bar_params).has_value());
}

TEST_F(WhatIfBar, SaysWhatIsTriedWithUpToTwoDecimals)
{
    EXPECT_EQ("", BarTrialText(doc, kEnglish));
    SelectBarParameter(doc, 0);
    SlideBar(doc, 1480);
    EXPECT_EQ("Brennweite 1480 mm (was 1500 mm)", BarTrialText(doc, kEnglish));
    EXPECT_EQ("Brennweite 1480 mm (vorher 1500 mm)", BarTrialText(doc, kGerman));
    data.SetFocuserHeight(40.504);
    SelectBarParameter(doc, 5);
    SlideBar(doc, 41);
    EXPECT_EQ("OAZ-H\xF6he 41 mm (was 40.5 mm)", BarTrialText(doc, kEnglish));
    SelectBarParameter(doc, 2);
    EXPECT_EQ("Fangspiegeldurchmesser 46.48 mm (was 46.48 mm)", BarTrialText(doc, kEnglish));
    CancelBar(doc);
    EXPECT_EQ("", BarTrialText(doc, kEnglish));
}

TEST_F(WhatIfBar, AcceptIsAStepAndATrialAloneIsNone)
{
    doc.BeginCommand();
    SelectBarParameter(doc, 0);
    SlideBar(doc, 2000);
    EXPECT_EQ(nullptr, doc.Steps().UndoName());
    AcceptBar(doc);
    ASSERT_NE(nullptr, doc.Steps().UndoName());
    EXPECT_STREQ("Brennweite", doc.Steps().UndoName()->german);
    SlideBar(doc, 2500);
    CancelBar(doc);
    EXPECT_EQ(2000.0, data.focal_length) << "the accepted one";
    doc.BeginCommand();
    doc.OnUndo();
    EXPECT_EQ(1500.0, data.focal_length);
}

TEST_F(WhatIfBar, AcceptKeepsTheTrialAndLeavesThePosition)
{
    SelectBarParameter(doc, 0);
    SlideBar(doc, 2000);
    ExpectState(AcceptBar(doc), 1000, 4000, std::nullopt);
    EXPECT_EQ(2000.0, doc.bar_params[0].value);
    EXPECT_EQ(1, doc.bar_params[0].selected);
    SelectBarParameter(doc, 1);
    EXPECT_EQ(2000.0, data.focal_length);
}

TEST_F(WhatIfBar, WithoutATelescopeNothingHappens)
{
    SelectBarParameter(doc, 2);
    data.Clear();
    EXPECT_FALSE(SelectBarParameter(doc, 0).has_value());
    SlideBar(doc, 77);
    EXPECT_FALSE(ResetBar(doc).has_value());
    EXPECT_FALSE(AcceptBar(doc).has_value());
    EXPECT_EQ(0, data.IsModified());
    EXPECT_EQ(HUGE_VAL, data.secondary_diameter);
}

TEST_F(WhatIfBar, AChoiceWithoutATelescopeEndsAnEarlierTrial)
{
    SelectBarParameter(doc, 2);
    data.Clear();
    EXPECT_FALSE(SelectBarParameter(doc, 0).has_value());
    EXPECT_EQ(0, doc.bar_params[2].selected) << "the list does not show it any more";
    EXPECT_EQ(HUGE_VAL, data.secondary_diameter) << "and nothing goes back into a cleared record";
    data.Reset();
    SlideBar(doc, 77);
    EXPECT_EQ(HUGE_VAL, data.secondary_diameter);
}

TEST_F(WhatIfBar, TheSameChoiceAgainLeavesTheTrialAlone)
{
    SelectBarParameter(doc, 2);
    SlideBar(doc, 60);
    EXPECT_FALSE(SelectBarParameter(doc, 2).has_value());
    EXPECT_EQ(60.0, data.secondary_diameter);
    EXPECT_DOUBLE_EQ(46.482, doc.bar_params[2].value);
}

TEST_F(WhatIfBar, ASmallValue)
{
    data.SetFocuserSpare(1.9);
    ExpectState(SelectBarParameter(doc, 6), 0, 2, 1);
    ExpectState(AcceptBar(doc), 1, 4, std::nullopt);
}

TEST_F(WhatIfBar, OddValuesStayInRange)
{
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    data.SetFocuserSpare(1e300);
    ExpectState(SelectBarParameter(doc, 6), 1073741823, most, most);
    data.SetFocuserSpare(-100);
    data.SetFocuserHeight(-100);
    ExpectState(SelectBarParameter(doc, 5), -200, -50, -100);
}

} // namespace
