#pragma once

#include "model/analysis/Eyepieces.h"

#include <string>
#include <vector>

/// Where lists of eyepieces are looked for: `eyepiece.dat` in the current folder, then `orreva/eyepiece.dat`
/// in the user's and the system's folders of data, the nearest first.
std::vector<std::string> EyepiecePlaces();

/// The first of the places at which something stands; the first of all if nothing stands anywhere.
std::string FindEyepieces(const std::vector<std::string>& places = EyepiecePlaces());

/// The list that was installed with the program: the last of the places at which a list with eyepieces
/// stands. Empty if there is none.
std::string InstalledEyepieces(const std::vector<std::string>& places = EyepiecePlaces());

/// What a page without eyepieces says: where lists are looked for, a line each.
std::string EyepiecePlacesText(const std::vector<std::string>& places, int language);
