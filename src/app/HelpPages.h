#pragma once

#include <QUrl>

/// The page that a help request opens: with the command 1 the page of the context `data`, otherwise, and for
/// a context that has none, the start page of the manual. All pages are in German.
QUrl HelpPage(long data, unsigned command);
