#pragma once

#include <vector>

class CPane;
struct PaneLine;

// What screen readers find in the two panes: a pane of sentences is a graphic with a text for each of them, a
// pane of labels and values a table of two columns.

/// To be called before the first pane is asked for; more than once does no harm.
void InstallPaneReading();

/// The children of a pane whose texts differ, its lines being `columns` children each; none for a line that
/// is not in both.
std::vector<int> ChangedChildren(const std::vector<PaneLine>& before, const std::vector<PaneLine>& now,
                                 int columns);

/// Tells whoever listens which lines have changed since the pane was last asked. A pane that is frozen, or
/// that nobody listens to, is not read.
void AnnouncePane(CPane& pane);
