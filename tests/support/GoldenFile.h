#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

/// The bytes of a file below tests/golden/, written by hand from the description of its format.
inline std::string GoldenFile(const std::string& name)
{
    std::ifstream file(ORREVA_SOURCE_DIR "/tests/golden/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}
