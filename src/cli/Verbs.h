#pragma once

struct Words;

/// Does what the words say; the exit status. A word that is not understood ends the program.
int RunVerb(const Words& words);
