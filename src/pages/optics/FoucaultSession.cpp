#include "pages/optics/FoucaultSession.h"

#include "document/OrrevaDoc.h"
#include "lib/files/FileBytes.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "model/optics/CouderMask.h"

#include <QDate>
#include <QFileInfo>

namespace {

constexpr std::size_t kMostImportBytes = std::size_t{64} << 20;

std::string Today() { return QDate::currentDate().toString(Qt::ISODate).toStdString(); }

std::string StemOf(const std::string& path)
{
    return Cp1252FromUtf8(QFileInfo(QFile::decodeName(path.c_str())).completeBaseName().toStdString());
}

} // namespace

CFoucaultSession::CFoucaultSession(COrrevaDoc& document, Fields fields, QObject* parent)
    : QObject(parent), m_document(document), m_fields(std::move(fields)), m_book(document.readings.Book()),
      m_current(m_book.series.empty() ? -1 : 0), m_shown(m_book.series.size(), false)
{
    if (m_current == 0) {
        m_shown[0] = true;
    }
}

double CFoucaultSession::D() const { return m_document.main_record.GetMirrorDiameter(); }

double CFoucaultSession::f() const { return m_document.main_record.GetFocalLength(); }

bool CFoucaultSession::HasSeries(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < m_book.series.size();
}

const ReadingSeries* CFoucaultSession::CurrentSeries() const
{
    return HasSeries(m_current) ? &m_book.series[static_cast<std::size_t>(m_current)] : nullptr;
}

void CFoucaultSession::Choose(int index)
{
    if (index == m_current || !HasSeries(index)) {
        return;
    }
    // One series alone is shown: it follows the choice.
    if (std::count(m_shown.begin(), m_shown.end(), true) <= 1) {
        m_shown.assign(m_shown.size(), false);
        m_shown[static_cast<std::size_t>(index)] = true;
    }
    m_current = index;
    emit Changed();
}

bool CFoucaultSession::IsShown(int index) const
{
    return HasSeries(index) && m_shown[static_cast<std::size_t>(index)];
}

void CFoucaultSession::Show(int index, bool shown)
{
    if (HasSeries(index) && IsShown(index) != shown) {
        m_shown[static_cast<std::size_t>(index)] = shown;
        emit Changed();
    }
}

void CFoucaultSession::SetAveraged(bool averaged)
{
    m_averaged = averaged;
    emit Changed();
}

std::vector<SeriesFigure> CFoucaultSession::Figures() const
{
    std::vector<std::size_t> chosen;
    for (std::size_t i = 0; i < m_shown.size(); ++i) {
        if (m_shown[i]) {
            chosen.push_back(i);
        }
    }
    return FiguresOfSeries(m_book, chosen, m_averaged, D(), f(), g_nLanguage);
}

void CFoucaultSession::Take(ReadingBook book)
{
    m_book = std::move(book);
    emit Modified();
    emit Changed();
}

void CFoucaultSession::Insert(ReadingSeries series)
{
    if (m_book.series.size() == kMostSeries) {
        return;
    }
    ReadingBook book = m_book;
    book.series.push_back(std::move(series));
    const auto last = book.series.size() - 1;
    if (std::count(m_shown.begin(), m_shown.end(), true) <= 1) {
        m_shown.assign(m_shown.size(), false);
    }
    m_shown.push_back(true);
    m_current = static_cast<int>(last);
    Take(std::move(book));
}

void CFoucaultSession::Add()
{
    Insert(NewSeries(m_book, g_pCurrentMask.get(), m_fields(), D(), Today(), g_nLanguage));
}

void CFoucaultSession::Copy()
{
    if (const ReadingSeries* const series = CurrentSeries()) {
        Insert(CopyOfSeries(m_book, *series));
    }
}

void CFoucaultSession::Remove()
{
    if (CurrentSeries() == nullptr) {
        return;
    }
    ReadingBook book = m_book;
    book.series.erase(book.series.begin() + m_current);
    m_shown.erase(m_shown.begin() + m_current);
    m_current = std::min(m_current, static_cast<int>(book.series.size()) - 1);
    if (m_current >= 0 && std::count(m_shown.begin(), m_shown.end(), true) == 0) {
        m_shown[static_cast<std::size_t>(m_current)] = true;
    }
    Take(std::move(book));
}

bool CFoucaultSession::Rename(int index, const std::string& name)
{
    ReadingBook book = m_book;
    if (!HasSeries(index) || !RenameSeries(book, static_cast<std::size_t>(index), name)) {
        return false;
    }
    if (book != m_book) {
        Take(std::move(book));
    }
    return true;
}

std::string CFoucaultSession::Import(const std::string& path)
{
    constexpr Bilingual kUnreadable{"%s cannot be read.", "%s kann nicht gelesen werden."};
    constexpr Bilingual kManySeries{"%s: there would be more than 1000 series.",
                                    "%s: es wären mehr als 1000 Messreihen."_cp1252};
    const std::string shown = Cp1252FromUtf8(QFile::decodeName(path.c_str()).toStdString());
    const auto text = ReadFileBytes(path.c_str(), kMostImportBytes + 1);
    if (!text || text->size() > kMostImportBytes) {
        return FormatText(kUnreadable.In(g_nLanguage), shown.c_str());
    }
    SeriesImport import = ImportSeries(*text, D() / 2, StemOf(path));
    if (import.fault) {
        return shown + ": " + FaultText(*import.fault, g_nLanguage);
    }
    if (m_book.series.size() + import.series.size() > kMostSeries) {
        return FormatText(kManySeries.In(g_nLanguage), shown.c_str());
    }
    for (ReadingSeries& series : import.series) {
        const auto taken = std::ranges::find(m_book.series, series.name, &ReadingSeries::name);
        Insert(taken == m_book.series.end() ? std::move(series) : CopyOfSeries(m_book, series));
    }
    return {};
}

bool CFoucaultSession::Export(const std::string& path) const
{
    const ReadingSeries* const series = CurrentSeries();
    return series != nullptr && ReplaceFile(path.c_str(), SeriesText(*series));
}

bool CFoucaultSession::ChangeCurrent(const std::function<bool(ReadingSeries&)>& change)
{
    if (CurrentSeries() == nullptr) {
        return false;
    }
    ReadingBook book = m_book;
    if (!change(book.series[static_cast<std::size_t>(m_current)])) {
        return false;
    }
    if (book != m_book) {
        Take(std::move(book));
    }
    return true;
}

void CFoucaultSession::SetConic(double conic)
{
    ReadingBook book = m_book;
    book.conic = conic;
    if (book != m_book) {
        Take(std::move(book));
    }
}

void CFoucaultSession::SetWavelength(double wavelength)
{
    ReadingBook book = m_book;
    book.wavelength = wavelength;
    if (book != m_book) {
        Take(std::move(book));
    }
}

void CFoucaultSession::Store() { m_document.StoreReadings(m_book); }

#include "moc_FoucaultSession.cpp"
