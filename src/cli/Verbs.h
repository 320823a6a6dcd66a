#pragma once

struct CommandLine;

/// Does what the words say; the exit status. A word that is not understood ends the program.
int RunVerb(const CommandLine& words);
