#pragma once

#include "model/record/OrrevaData.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

/// One of the parameters that the what-if bar offers. Its text is German in both languages.
struct BarParameter {
    const char* text;
    double (COrrevaData::*get)();
    void (COrrevaData::*set)(double);
};

std::span<const BarParameter> BarParameters();

/// The document's entry for one parameter of the what-if bar.
struct BarParam {
    std::uint8_t selected = 0; ///< 1 while it is under trial; at most one is
    double value = 0.0;        ///< the value to go back to
};

/// By the order of BarParameters; the rest is not used.
using BarParams = std::array<BarParam, 32>;

/// Which parameter is under trial, nothing if none is.
std::optional<std::int32_t> TrialAmong(const BarParams& params);
