#pragma once

#include "model/optics/SeriesFigures.h"

#include <QObject>

#include <functional>
#include <vector>

class COrrevaDoc;

/// What the pages of the Foucault sheet share: the book of readings as it is worked on, which series is the
/// current one, and which are shown. The document gets the book by OK and Apply.
class CFoucaultSession : public QObject {
    Q_OBJECT

public:
    using Fields = std::function<ZoneFields()>;

    /// `fields` gives the texts of the zone calculator as they stand.
    CFoucaultSession(COrrevaDoc& document, Fields fields, QObject* parent);

    COrrevaDoc& Document() { return m_document; }
    const ReadingBook& Book() const { return m_book; }
    /// The mirror's diameter and focal length, mm.
    double D() const;
    double f() const;

    /// The current series, -1 for none.
    int Current() const { return m_current; }
    const ReadingSeries* CurrentSeries() const;
    void Choose(int index);

    bool IsShown(int index) const;
    void Show(int index, bool shown);
    bool IsAveraged() const { return m_averaged; }
    void SetAveraged(bool averaged);
    /// The figures of the shown series, in the language of code texts.
    std::vector<SeriesFigure> Figures() const;

    // What the user does to the book -----------------------------------------------------------------------

    void Add();
    void Copy();
    void Remove();
    /// False if the name is empty or taken.
    bool Rename(int index, const std::string& name);
    /// Reads a file; what was wrong with it, empty if its series were added.
    std::string Import(const std::string& path);
    /// Writes the current series; false if the file could not be written.
    bool Export(const std::string& path) const;
    /// The current series, changed by `change`, which says whether it was.
    bool ChangeCurrent(const std::function<bool(ReadingSeries&)>& change);
    void SetConic(double conic);
    void SetWavelength(double wavelength);

    /// Hands the book to the document, if it was changed.
    void Store();

signals:
    /// The user changed the book.
    void Modified();
    /// The book, the current series or the choice of those shown differs.
    void Changed();

private:
    void Insert(ReadingSeries series);
    void Take(ReadingBook book);
    bool HasSeries(int index) const;

    COrrevaDoc& m_document;
    Fields m_fields;
    ReadingBook m_book;
    int m_current;
    std::vector<bool> m_shown; ///< for each series
    bool m_averaged = false;
};
