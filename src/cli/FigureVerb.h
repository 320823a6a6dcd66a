#pragma once

#include "model/optics/Figure.h"

#include <optional>
#include <string>

class COrrevaData;
struct CommandLine;

/// What the words say of a figure: where the readings stand, and what they are held against.
struct FigureWords {
    std::string readings; ///< the path of the file
    FigureSettings settings;
};

/// Takes those words; a word that is missing or not understood ends the program.
FigureWords FigureWordsOf(const CommandLine& words);

/// The figure of the record's mirror from the readings; nothing, told on standard error, if the mirror or the
/// file has none.
std::optional<Figure> ReadFigure(const FigureWords& words, COrrevaData& record);

/// The verb `figure`.
int FigureVerb(const CommandLine& words);
