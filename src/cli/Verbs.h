#pragma once

struct CommandLine;

/// Does what the words say; the exit status. A word that is not understood ends the program.
int RunVerb(const CommandLine& words);

// Verbs that stand in sources of their own. Each gives the exit status. ------------------------------------

int ValuesVerb(const CommandLine& words);
int SweepVerb(const CommandLine& words);
int CompareVerb(const CommandLine& words);
int CheckVerb(const CommandLine& words);
int SheetsVerb(const CommandLine& words);
