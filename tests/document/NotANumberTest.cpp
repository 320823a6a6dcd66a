#include "document/FtaExport.h"
#include "document/OrrevaDoc.h"
#include "document/OsloExport.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "drawing/SectionPicture.h"
#include "drawing/SummaryPicture.h"
#include "drawing/TubePanelPicture.h"
#include "model/analysis/Summary.h"
#include "model/record/Formulas.h"
#include "model/record/RecordFields.h"
#include "support/RecordingSurface.h"
#include "support/SampleScopes.h"
#include "support/SilentHost.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

// A NaN in any field of a telescope: what is computed of it may be no number either, but everything has its
// end.

namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

/// Runs `look` on telescopes with one number each that is none.
template <class Look>
void WithEachFieldOff(Look look)
{
    for (const RecordField& field : RecordFields()) {
        if (const RealField* const real = std::get_if<RealField>(&field.field)) {
            SCOPED_TRACE(field.key);
            SilentHost host;
            COrrevaDoc document(host);
            MakeRoundScope(document.main_record);
            (document.main_record.*real->set)(kNotANumber);
            look(document, *real);
        }
    }
}

TEST(NotANumber, InAnyFieldCountsAsUnset)
{
    WithEachFieldOff([](COrrevaDoc& document, const RealField& field) {
        SilentHost host;
        COrrevaDoc twin(host);
        MakeRoundScope(twin.main_record);
        (twin.main_record.*field.set)(HUGE_VAL);
        document.Recalculate();
        twin.Recalculate();
        EXPECT_EQ(twin.HasFile(), document.HasFile());
        for (const RecordField& each : RecordFields()) {
            if (const RealField* const real = std::get_if<RealField>(&each.field)) {
                const double value = document.main_record.*real->place;
                const double expected = twin.main_record.*real->place;
                EXPECT_TRUE(value == expected || (IsUnset(value) && IsUnset(expected)))
                    << each.key << " " << value << " " << expected;
            }
        }
    });
}

TEST(NotANumber, InAnyFieldIsShown)
{
    WithEachFieldOff([](COrrevaDoc& document, const RealField&) {
        document.Recalculate();
        RecordingSurface pane(400, 700);
        PaintSummary(pane, document.main_record, {20, 1.5}, 0);
        EXPECT_EQ(1u + 6 + 2 * 18, pane.Of<drawn::WrappedText>().size()) << "title, headings, rows";
        RecordingSurface panel(285, 300);
        PaintTubePanel(panel, document.main_record, 0, {});
        EXPECT_EQ(16u, panel.Of<drawn::WrappedText>().size());
        for (std::uint8_t ViewSwitches::*const mode :
             {&ViewSwitches::ray_parallel, &ViewSwitches::ray_from_focal_plane,
              &ViewSwitches::ray_from_mouse}) {
            ViewSwitches switches;
            switches.*mode = 1;
            switches.show_box_and_cage = 1;
            SectionZoom view{3, 50, 60};
            RecordingSurface window(500, 300);
            PaintSection(window, view, document.main_record, switches, Pixel{200, 100}, 0);
            EXPECT_LT(10u, window.calls.size());
            EXPECT_GT(1000u, window.calls.size()) << "a scale of a tube without length has no ticks";
        }
    });
}

TEST(NotANumber, InAnyFieldGoesOutByEveryWay)
{
    WithEachFieldOff([](COrrevaDoc& document, const RealField& field) {
        COrrevaData back;
        ReadTelescope(XmlScanner::FromText(WriteTelescope(document.main_record)), back);
        EXPECT_EQ(-1, back.*field.place) << "as the file's text for it is read";
        document.Recalculate();
        EXPECT_FALSE(OsloExport(document.main_record).empty());
        EXPECT_TRUE(FtaExport(document.main_record));
    });
}

} // namespace
