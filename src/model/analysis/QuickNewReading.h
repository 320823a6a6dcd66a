#pragma once

#include <string>

/// What the quick New dialog understands of its two numbers, "200 mm, 1200 mm, f/6.0", and behind it what is
/// not read: a comma ends a number there, and so does a letter. Texts are bytes of code page 1252.
std::string QuickNewReading(const std::string& aperture, const std::string& focal_length, int language);
