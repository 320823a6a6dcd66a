#pragma once

#include "cli/Report.h"
#include "model/FoucaultZones.h"

#include <functional>
#include <optional>
#include <string>

// The pages of the optical tests and of the simulated field.

/// The words of the options of the zone calculator, in the order of its radio buttons.
inline constexpr std::string_view kTemplateWords[] = {"couder", "everest"};
inline constexpr std::string_view kCentreMethodWords[] = {"carlin", "couder", "texereau"};
inline constexpr std::string_view kLightSourceWords[] = {"moving", "fixed"};

/// What is done on the freshly opened zone calculator; a field without a text stays as it opens.
struct ZoneOptions {
    std::optional<std::string> zones;
    std::optional<std::string> centre;
    std::optional<std::string> edge;
    ZoneView view;
};

/// Takes the lines of a page one by one.
using ReportSink = std::function<void(const std::string& line)>;

/// The zone calculator. Its list may be longer than memory, so that no line is kept.
void FoucaultReport(COrrevaData& record, const ZoneOptions& options, const ReportSink& sink);

ReportLines RonchiReport(const ReportContext& context);
ReportLines StarReport(const ReportContext& context);
ReportLines MarksReport(const ReportContext& context);
ReportLines FieldReport(const ReportContext& context);
