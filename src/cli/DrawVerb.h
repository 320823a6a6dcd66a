#pragma once

#include "cli/ViewOptions.h"
#include "drawing/Surface.h"
#include "model/analysis/Summary.h"
#include "model/optics/Figure.h"
#include "painting/PictureFile.h"

#include <span>
#include <string>
#include <string_view>

class COrrevaData;

/// The options of `draw`, already parsed.
struct DrawOptions : ViewOptions {
    Pixel size{};
    std::int32_t zoom = 1; ///< 1 to 5
    Pixel scroll{};
    std::uint32_t seed = 0; ///< in place of the time
    std::int32_t type = 0;
    double diameter = 0.0;
    double thickness = 0.0;
    double value = 0.0;
    FigureSettings figure{}; ///< of the wavefront
};

/// The options that a picture has without any word: the time seeds the patterns, and the calculators have
/// what their dialogs start with.
DrawOptions OpeningOptions(std::string_view picture);

/// What a picture may show.
struct DrawContext {
    COrrevaData& record;
    FullField field; ///< the document's figures after its last recalculation
    int language;
    const DrawOptions& options;
    const Figure* figure = nullptr; ///< of the picture that shows one; null is none
};

struct NamedPicture {
    const char* name;
    void (*paint)(Surface& surface, const DrawContext& context);
};

/// The pictures that `draw` knows.
std::span<const NamedPicture> Pictures();
/// Null if there is none of that name.
const NamedPicture* FindPicture(std::string_view name);

/// Whether a picture may have this size: 1 to 16384 pixels on each side.
bool IsPictureSize(Pixel size);

/// Paints into a file in the form of its ending; a pixel is a point on paper. The file appears whole or not
/// at all. 0 done, 1 not written. `path` and the size are of the kinds above.
int DrawPicture(const NamedPicture& picture, const DrawContext& context, const std::string& path);
