#include "lib/platform/Debugger.h"

#include <gtest/gtest.h>

namespace {

TEST(Debugger, ATracedProcessNamesItsTracer)
{
    EXPECT_TRUE(IsTraced("Name:\torreva\nTracerPid:\t4711\nUid:\t0\n"));
    EXPECT_FALSE(IsTraced("Name:\torreva\nTracerPid:\t0\nUid:\t7\n"));
    EXPECT_FALSE(IsTraced("Name:\torreva\n"));
    EXPECT_FALSE(IsTraced("TracerPid:"));
    EXPECT_FALSE(IsTraced(""));
}

} // namespace
