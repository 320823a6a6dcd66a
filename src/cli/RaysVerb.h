#pragma once

#include <string>

class COrrevaData;
struct ViewOptions;

/// The segments of the mode's set, each on a line of its own "x0 y0 x1 y1 hit|lost" in mm, and after the
/// parallel set its status line; UTF-8 with LF line ends.
std::string RaysText(COrrevaData& record, const ViewOptions& options, int language);
