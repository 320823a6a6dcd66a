#include "model/analysis/Eyepieces.h"

#include "lib/text/Language.h"

#include <cstdint>
#include <cstdlib>

/// Whatever stands in the list, each eyepiece has its place in the drop-down and its five rows.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::vector<Eyepiece> eyepieces = ParseEyepieces(text);
    const std::vector<std::size_t> order = SortEyepieces(eyepieces);
    if (order.size() != eyepieces.size()) {
        std::abort();
    }
    COrrevaData record;
    for (const std::size_t i : order) {
        if (eyepieces.at(i).name.size() > 1000 || EyepieceRows(record, eyepieces[i], kEnglish).size() != 5) {
            std::abort();
        }
    }
    return 0;
}
