#pragma once

#include <QComboBox>

class CFoucaultSession;

/// Fills a drop-down with the names of the series and stands on the current one.
void ListSeries(QComboBox& list, const CFoucaultSession& session);
