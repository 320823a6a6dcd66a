#pragma once

#include "model/record/OrrevaData.h"
#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

#include <cstddef>
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
/// count. A missing field is the empty text and 0.
std::vector<Eyepiece> ParseEyepieces(std::string_view text);

/// The same from a file of code page 1252; a missing file has no eyepieces.
std::vector<Eyepiece> LoadEyepieces(const char* path);

/// Indices of the eyepieces as the drop-down sorts them: by folded capitals, then by bytes.
std::vector<std::size_t> SortEyepieces(const std::vector<Eyepiece>& eyepieces);

/// What the eyepiece gives in the record's telescope.
ListRows EyepieceRows(COrrevaData& record, const Eyepiece& eyepiece, int language);
