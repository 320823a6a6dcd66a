#pragma once

#include <string>
#include <vector>

/// What the calculator's result field shows, a line for each expression; without any, for each line of
/// standard input, answered as soon as it is read. The exit status: kFailed if any field shows a message in
/// place of a number.
int CalcVerb(const std::vector<std::string>& expressions, const std::string& outputPath);
