#pragma once

#include "drawing/paper/SheetDrawing.h"
#include "drawing/paper/SheetPages.h"
#include "model/record/OrrevaData.h"

#include <optional>
#include <string>
#include <variant>

/// What the makers of the sheets share.

/// A sheet before it is laid out.
struct SheetContent {
    SheetDrawing drawing{};
    std::int32_t scale = 1; ///< millimetres of the telescope for one of paper
    bool fitted = false;    ///< scaled to one page, so that no line need be held against a rule
};

using SheetResult = std::variant<SheetContent, Bilingual>;

/// What a sheet can use of a page: all but a margin.
inline constexpr double kSheetMargin = 8;

SheetResult CouderMaskSheet(COrrevaData& record, const SheetZones& zones);
SheetResult EverestSheet(COrrevaData& record, const SheetZones& zones);
SheetResult SecondarySheet(COrrevaData& record, int language);
SheetResult MarksSheet(COrrevaData& record, int language);
/// Scaled to a room of so many mm.
SheetResult TubeSheet(COrrevaData& record, double width, double height, int language);

/// The words above the drawing.
struct SheetLabels {
    std::string title; ///< of the design
    std::string name;  ///< of the sheet
    int language = kEnglish;
};

/// Parts a sheet into pages.
SheetPages TileSheet(const SheetContent& content, const SheetLabels& labels, const PaperSize& paper);
