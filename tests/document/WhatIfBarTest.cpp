#include "document/WhatIfBar.h"

#include "lib/text/LogSink.h"
#include "support/RecordingHost.h"

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
    SlideBar(doc, 46);
    EXPECT_EQ(46.0, data.secondary_diameter);
    EXPECT_EQ((std::vector<std::string>{"update", "update"}), host.Take());
    EXPECT_EQ(1, data.IsModified());
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
    EXPECT_DOUBLE_EQ(46.482, data.secondary_diameter);
    EXPECT_EQ((std::vector<std::string>{"update", "update"}), host.Take());
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
    ExpectState(SelectBarParameter(doc, 5), -50, -200, -100);
}

} // namespace
