#pragma once

#include <QString>
#include <QUrl>

/// Where the help pages stand. An address that is empty leads to the manual that came with the program.
struct HelpAddresses {
    QString manualBase;  ///< the manual's pages on the web, with its last slash
    QString manualStart; ///< the manual's start page on the web
    QString wikiBase;    ///< the wiki with the formula collection, with its last slash
    QString forumBase;   ///< the support forum's server, with its last slash
    QString localFolder; ///< the folder of the program's own manual, in one language
};

/// The addresses that the build was given, and the program's own manual in `language`: below the program's
/// prefix where it is installed, else in the build tree.
HelpAddresses BuiltHelpAddresses(int language);

/// The page that a help request opens: with the command 1 the page of the context `data`, otherwise, and for
/// a context that has none, the start page of the manual. On the web all pages are in German.
QUrl HelpPage(long data, unsigned command, const HelpAddresses& addresses);

/// What the status bar says of a page that no browser shows.
QString UnopenedHelpText(const QUrl& page, int language);
