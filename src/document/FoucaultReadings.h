#pragma once

#include "model/optics/ReadingSeries.h"

#include <string>

/// The readings of the knife edge that belong to the design: a book of series in a file of its own beside the
/// design's, opened and saved with it. Whatever becomes of that file, it never keeps the design from opening.
/// Texts are bytes of code page 1252, paths bytes of the file system.
class FoucaultReadings {
public:
    const ReadingBook& Book() const { return m_book; }
    /// Takes another book; false if it is the same one.
    bool Change(ReadingBook book);
    /// Whether the book differs from its file.
    bool IsModified() const { return m_modified; }

    /// Forgets the book with the design that it belonged to.
    void Clear();
    /// Reads the book beside a design. What the status bar tells: that there is none, or that it is damaged;
    /// empty if all is well. Without a file, or with a damaged one, the book is empty.
    std::string Open(const std::string& designPath, int language);
    /// Writes the book beside a design, whole or not at all. A book that is empty makes no file where none
    /// stands. What the status bar tells; empty if all is well. A file that the book replaces, damaged or
    /// neither read nor written with this design, stays beside it, its name with a "~".
    std::string Save(const std::string& designPath, int language);

private:
    ReadingBook m_book;
    bool m_modified = false;
    std::string m_damaged; ///< the path of the file that could not be read
    std::string m_own;     ///< the path of the file that holds the book, or held it before a change
};
