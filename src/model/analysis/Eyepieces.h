#pragma once

#include "model/record/OrrevaData.h"
#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The page Eyepieces: the user's own list of eyepieces, and what each gives in the telescope.

inline constexpr ListColumn kEyepieceColumns[] = {{{"Property", "Eigenschaft"}, 222},
                                                  {{"Value", "Wert"}, 75, true}};

struct Eyepiece {
    std::string name;          ///< code page 1252
    double focal_length = 0;   ///< mm
    double apparent_field = 0; ///< degrees
};

/// Eyepieces of a list's text, in its order: a line each of name, focal length and apparent field, parted by
/// commas. A line that is empty or starts with `#` is skipped; of a longer one the first 1000 characters
/// count. A missing field is the empty text and 0. At most `most` of them.
std::vector<Eyepiece> ParseEyepieces(std::string_view text, std::size_t most = SIZE_MAX);

/// A list as far as it is read: nobody scrolls through more.
struct EyepieceList {
    static constexpr std::size_t kMostEntries = 100000;
    static constexpr std::size_t kMostBytes = std::size_t{16} << 20;

    enum class End {
        kComplete,
        kMoreEntries, ///< than kMostEntries, and the first of them are here
        kMoreBytes,   ///< the file is longer than kMostBytes, and what stands in these is here
        kUnreadable,  ///< something stands at the path that cannot be read
    };

    std::vector<Eyepiece> entries;
    End end = End::kComplete;
};

/// The list in a file of code page 1252; a missing file has no eyepieces.
EyepieceList LoadEyepieces(const char* path);

/// What the page says of a list that is not complete; empty for one that is.
std::string EyepieceEndText(const EyepieceList& list, int language);
/// The last line of a report over such a list from the file at `path`.
std::string EyepieceEndLine(const EyepieceList& list, const char* path);

/// Indices of the eyepieces as the drop-down sorts them: by folded capitals, then by bytes.
std::vector<std::size_t> SortEyepieces(const std::vector<Eyepiece>& eyepieces);

/// What the eyepiece gives in the record's telescope.
ListRows EyepieceRows(COrrevaData& record, const Eyepiece& eyepiece, int language);
