#pragma once

#include <optional>
#include <string>

/// How far the conic constant of a mirror may wander (1 is the paraboloid) before its wavefront error reaches
/// a quarter of a wave.
struct RonchiTolerance {
    double lower;
    double upper;
};

/// Steps away from the paraboloid by 0.01 until the error is reached, on either side. D and F in mm. Nothing
/// if a search has not ended after a million steps: such a mirror (D or F of 0, a tiny one) has no limit.
std::optional<RonchiTolerance> FindRonchiTolerance(double D, double F);

/// The line above the patterns, in German in both languages.
std::string RonchiToleranceText(const RonchiTolerance& tolerance);
