#include "cli/RaysVerb.h"

#include "cli/ViewOptions.h"
#include "lib/text/CodePage.h"
#include "lib/text/LibString.h"
#include "raytrace/RaySets.h"

std::string RaysText(COrrevaData& record, const ViewOptions& options, int language)
{
    const ViewSwitches switches = SwitchesFor(options);
    const ScopeGeometry geometry = BuildGeometry(record, switches.show_offset != 0);
    const RayPicture rays = TraceActiveSet(geometry, record, switches, options.pointer);
    std::string text;
    for (const RaySegment& segment : rays.segments) {
        LibString line;
        line.Format("%.17g %.17g %.17g %.17g %s\n", segment.x0, segment.y0, segment.x1, segment.y1,
                    segment.colour == RayHit ? "hit" : "lost");
        text += line.GetText();
    }
    if (rays.status) {
        text += Utf8FromCp1252(FormatParallelStatus(language, *rays.status)) + '\n';
    }
    return text;
}
