#include "document/RescueNote.h"

#include <cstdint>
#include <cstdlib>

/// Whatever stands in a note, it is refused or reads back as it was read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto note = RescueNote::Parse({reinterpret_cast<const char*>(data), size});
    if (!note) {
        return 0;
    }
    const auto again = RescueNote::Parse(note->Text());
    if (!again || again->Text() != note->Text() || again->title != note->title || again->path != note->path ||
        note->Time().size() != 25) {
        std::abort();
    }
    return 0;
}
