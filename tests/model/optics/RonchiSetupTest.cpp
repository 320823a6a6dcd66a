#include "model/optics/RonchiSetup.h"

#include <gtest/gtest.h>

namespace {

TEST(RonchiSetup, ShowsStoresAndResetsItsFields)
{
    COrrevaData telescope;
    EXPECT_EQ("5.00", ShowNumber(telescope, kRonchiGrating));
    EXPECT_EQ("1.00", ShowNumber(telescope, kRonchiConstant));
    StoreNumber(telescope, kRonchiGrating, "7,125");
    StoreNumber(telescope, kRonchiConstant, "0,5");
    EXPECT_EQ(7.125, telescope.ronchi_grating);
    EXPECT_EQ(0.5, telescope.ronchi_constant);
    EXPECT_EQ("7.12", ShowNumber(telescope, kRonchiGrating));
    EXPECT_EQ("5.00", ResetNumber(telescope, kRonchiGrating));
    EXPECT_EQ("1.00", ResetNumber(telescope, kRonchiConstant));
    EXPECT_EQ(5, telescope.ronchi_grating);
}

} // namespace
