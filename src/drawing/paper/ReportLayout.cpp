#include "drawing/paper/ReportLayout.h"

#include "drawing/WordWrap.h"
#include "drawing/paper/TextWidth.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace {

constexpr Colour kReportInk = kBlack;
constexpr Colour kReportRule{190, 190, 190};
constexpr Colour kReportFaint{90, 90, 90}; // running title and page number

// Lengths are mm.
constexpr double kBodyTop = 18;
constexpr double kBelowBody = 18; // from the lower edge
constexpr double kRunningAt = 10;
constexpr double kNumberAt = 13; // from the lower edge
constexpr double kSmallText = 3;
constexpr double kTitleText = 8;
constexpr double kHeadingText = 5;
constexpr double kRowText = 3.6;
constexpr double kRowGap = 0.7;
constexpr double kHeadingGap = 2;
constexpr double kPartGap = 6;
constexpr double kColumnGap = 4;
constexpr double kGroupGap = 8;

constexpr std::size_t kLongestCell = 400;         // characters
constexpr std::size_t kLongestDescription = 8000; // likewise
constexpr std::size_t kMostDescriptionLines = 40;
constexpr std::size_t kRowsTogether = 3; // that a heading is never parted from
constexpr std::size_t kRowsOfBlock = 8;  // below a heading among the rows, that are never parted
constexpr std::size_t kShortTable = 12;  // rows; such a table stays one

constexpr Bilingual kContinued{"%s (continued)", "%s (Fortsetzung)"};
constexpr Bilingual kMoreRows{"There are more rows, which are not printed.",
                              "Weitere Zeilen sind nicht gedruckt."};
constexpr Bilingual kCutShort{"The report is longer than these pages; the rest is not printed.",
                              "Der Bericht ist länger als diese Seiten; der Rest ist nicht gedruckt."_cp1252};

double WidthInMm(std::string_view text, const Font& font) { return TextWidth(text, font) / kUnitsPerMm; }

/// The lines of a text within a width; a word that is wider is cut.
std::vector<std::string> LinesIn(std::string_view text, const Font& font, double width)
{
    const auto measure = [&](std::string_view piece) { return WidthInMm(piece, font); };
    std::vector<std::string> lines;
    for (const std::string_view line : WrapWords(text, width, measure)) {
        lines.push_back(CutToWidth(line, font, width * kUnitsPerMm));
    }
    return lines;
}

/// One line's worth of any text: control characters are blanks, and much of it is cut.
std::string Tamed(std::string_view text, std::size_t longest, bool keepLines)
{
    std::string tamed(text.substr(0, longest));
    if (text.size() > longest) {
        tamed += "…"_cp1252;
    }
    for (char& c : tamed) {
        const bool line = keepLines && (c == '\n' || c == '\r');
        if (static_cast<unsigned char>(c) < ' ' && !line) {
            c = ' ';
        }
    }
    return tamed;
}

// One page --------------------------------------------------------------------------------------------------

struct PageText {
    Pixel at;
    std::string text;
    Font font;
    Colour colour = kReportInk;
};

struct PageContent {
    std::vector<PageText> texts;
    std::vector<std::pair<Pixel, Pixel>> rules;
    std::vector<std::pair<ReportPicture, PixelRect>> pictures;

    void Paint(Surface& page) const
    {
        for (const auto& [picture, place] : pictures) {
            picture.paint(page, place);
        }
        for (const auto& [from, to] : rules) {
            page.Line(from, to, kReportRule);
        }
        for (const PageText& text : texts) {
            page.Text(text.at, text.text, text.font, text.colour);
        }
    }
};

// Tables ----------------------------------------------------------------------------------------------------

/// A row as it stands: the lines of each cell.
struct LaidRow {
    std::vector<std::vector<std::string>> cells;
    double height = 0;
    bool bold = false;  ///< the columns' titles, or a heading among the rows
    bool stays = false; ///< with the row below it
    bool spans = false; ///< one cell over all columns
};

struct LaidTable {
    std::vector<double> columns; ///< widths
    std::size_t groups = 1;      ///< that stand side by side
    double group = 0;            ///< width of one
    std::vector<LaidRow> rows;
};

bool IsGap(const std::vector<std::string>& cells)
{
    return cells.size() > 1 && std::ranges::all_of(cells, &std::string::empty);
}

std::vector<double> NaturalColumns(const std::vector<std::vector<std::string>>& rows, const Font& font)
{
    std::vector<double> widths;
    for (const auto& cells : rows) {
        if (cells.size() < 2) {
            continue;
        }
        widths.resize(std::max(widths.size(), cells.size()));
        for (std::size_t i = 0; i < cells.size(); ++i) {
            widths[i] = std::max(widths[i], WidthInMm(cells[i], font));
        }
    }
    return widths;
}

double TotalOf(const std::vector<double>& columns)
{
    const double gaps = columns.empty() ? 0 : kColumnGap * static_cast<double>(columns.size() - 1);
    return std::accumulate(columns.begin(), columns.end(), gaps);
}

/// Makes the widest columns narrower, as far as they are wider than their share of the room.
void FitColumns(std::vector<double>& columns, double room)
{
    std::vector<double*> byWidth;
    byWidth.reserve(columns.size());
    for (double& width : columns) {
        byWidth.push_back(&width);
    }
    std::ranges::sort(byWidth, {}, [](const double* width) { return *width; });
    double left = room - TotalOf(std::vector<double>(columns.size()));
    for (std::size_t i = 0; i < byWidth.size(); ++i) {
        const double share = std::max(left / static_cast<double>(byWidth.size() - i), 1.0);
        *byWidth[i] = std::min(*byWidth[i], share);
        left -= *byWidth[i];
    }
}

LaidRow LayRow(const std::vector<std::string>& cells, const LaidTable& table, bool bold)
{
    LaidRow row;
    row.bold = bold;
    row.spans = cells.size() == 1;
    const Font font = PaperFont(kRowText, bold ? Font::kBold : Font::kNormal);
    std::size_t most = 1;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const double width = row.spans ? table.group : table.columns[i];
        row.cells.push_back(LinesIn(cells[i], font, width + 0.01)); // its own width is enough for a text
        most = std::max(most, row.cells.back().size());
    }
    row.height = IsGap(cells) ? kRowText / 2 : static_cast<double>(most) * kRowText + kRowGap;
    return row;
}

LaidTable LayTable(const ReportTable& source, double room, int language)
{
    std::vector<std::vector<std::string>> rows;
    if (!source.columns.empty()) {
        rows.push_back(source.columns);
    }
    for (const auto& cells : source.rows) {
        if (rows.size() >= kMostTableRows) {
            rows.push_back({kMoreRows.In(language)});
            break;
        }
        rows.push_back(cells);
    }
    for (auto& cells : rows) {
        std::ranges::transform(cells, cells.begin(),
                               [](const std::string& cell) { return Tamed(cell, kLongestCell, false); });
    }
    LaidTable table;
    table.columns = NaturalColumns(rows, PaperFont(kRowText, Font::kBold));
    FitColumns(table.columns, room);
    const double wide = TotalOf(table.columns);
    if (rows.size() > kShortTable && wide > 0) {
        const double fitting = std::floor((room + kGroupGap) / (wide + kGroupGap));
        table.groups = static_cast<std::size_t>(std::clamp(fitting, 1.0, 6.0));
    }
    table.group =
        (room - kGroupGap * static_cast<double>(table.groups - 1)) / static_cast<double>(table.groups);
    std::size_t blockEnd = 0; // the rows before it stay with the heading above them
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool titles = i == 0 && !source.columns.empty();
        const bool heads = rows[i].size() == 1 && i + 1 < rows.size() && rows[i + 1].size() > 1;
        blockEnd = heads ? i + kRowsOfBlock : blockEnd;
        const bool ends = i + 1 == rows.size() || rows[i + 1].size() == 1;
        table.rows.push_back(LayRow(rows[i], table, titles || heads));
        table.rows.back().stays = titles || heads || (!ends && i < blockEnd);
    }
    return table;
}

double HeightOf(const std::vector<LaidRow>& rows, std::size_t from, std::size_t to)
{
    double height = 0;
    for (std::size_t i = from; i < std::min(to, rows.size()); ++i) {
        height += rows[i].height;
    }
    return height;
}

// All pages -------------------------------------------------------------------------------------------------

class ReportFlow {
public:
    ReportFlow(const PaperReport& report, const PaperSize& paper, int words)
        : m_report(report), m_paper(paper), m_language(words), m_width(ReportWidth(paper))
    {
        m_pages.push_back(std::make_shared<PageContent>());
    }

    PaperDocument LayOut()
    {
        AddTitle();
        for (const ReportPart& part : m_report.parts) {
            std::visit([this](const auto& one) { Add(one); }, part);
        }
        PaperDocument document{m_report.title};
        for (std::size_t i = 0; i < m_pages.size(); ++i) {
            AddMargins(*m_pages[i], i + 1);
            document.pages.push_back({m_paper.width, m_paper.height,
                                      [page = m_pages[i]](Surface& surface) { page->Paint(surface); }});
        }
        return document;
    }

private:
    double Bottom() const { return m_paper.height - kBelowBody; }
    PageContent& Page() { return *m_pages.back(); }

    void Text(double x, double y, const std::string& text, const Font& font)
    {
        if (!text.empty()) {
            Page().texts.push_back({PaperPixel({x, y}), text, font});
        }
    }
    void Rule(double x, double y, double width)
    {
        Page().rules.emplace_back(PaperPixel({x, y}), PaperPixel({x + width, y}));
    }

    /// False once all pages are full: what comes then is not printed.
    bool NextPage()
    {
        m_full = m_full || m_pages.size() == kMostReportPages;
        if (!m_full) {
            m_pages.push_back(std::make_shared<PageContent>());
            m_y = kBodyTop;
        }
        return !m_full;
    }
    /// Room for so much, on this page or the next one.
    bool Reserve(double height)
    {
        return !m_full && (m_y + height <= Bottom() || m_y == kBodyTop || NextPage());
    }

    void AddLines(const std::vector<std::string>& lines, double height, const Font& font)
    {
        for (const std::string& line : lines) {
            Text(kReportMargin, m_y, line, font);
            m_y += height;
        }
    }

    void AddTitle()
    {
        constexpr std::size_t kMostTitleLines = 3;
        const Font font = PaperFont(kTitleText, Font::kBold);
        std::vector<std::string> lines = LinesIn(Tamed(m_report.title, kLongestCell, false), font, m_width);
        lines.resize(std::min(lines.size(), kMostTitleLines));
        AddLines(lines, kTitleText, font);
        AddLines({m_report.date}, kRowText + kHeadingGap, PaperFont(kRowText));
        lines = LinesIn(Tamed(m_report.description, kLongestDescription, true), PaperFont(kRowText), m_width);
        if (lines.size() > kMostDescriptionLines) {
            lines.resize(kMostDescriptionLines - 1);
            lines.emplace_back("…"_cp1252);
        }
        AddLines(lines, kRowText, PaperFont(kRowText));
        m_y += kPartGap / 2;
    }

    void AddHeading(const std::string& heading)
    {
        if (!heading.empty()) {
            Text(kReportMargin, m_y, heading, PaperFont(kHeadingText, Font::kBold));
            Rule(kReportMargin, m_y + kHeadingText + 0.4, m_width);
            m_y += HeadingHeight(heading);
        }
    }
    static double HeadingHeight(const std::string& heading)
    {
        return heading.empty() ? 0 : kHeadingText + kHeadingGap;
    }

    void Add(const ReportPicture& picture)
    {
        if (!Reserve(HeadingHeight(picture.heading) + picture.height)) {
            return;
        }
        AddHeading(picture.heading);
        const Pixel corner = PaperPixel({kReportMargin, m_y});
        const Pixel end = PaperPixel({kReportMargin + m_width, m_y + picture.height});
        Page().pictures.emplace_back(picture, PixelRect{corner.x, corner.y, end.x, end.y});
        m_y += picture.height + kPartGap;
    }

    void Add(const ReportTable& source)
    {
        const LaidTable table = LayTable(source, m_width, m_language);
        if (table.rows.empty()) {
            return;
        }
        std::string heading = source.heading;
        for (std::size_t next = 0; next < table.rows.size();) {
            if (!Reserve(HeadingHeight(heading) + HeightOf(table.rows, next, EndOfFirst(table, next)))) {
                return;
            }
            AddHeading(heading);
            next = AddRows(table, next);
            heading = FormatText(kContinued.In(m_language), source.heading.c_str());
            if (next < table.rows.size() && !NextPage()) {
                return;
            }
        }
        m_y += kPartGap;
    }

    /// Behind the rows that stand below a heading in any case.
    static std::size_t EndOfFirst(const LaidTable& table, std::size_t first)
    {
        std::size_t end = std::min(first + kRowsTogether, table.rows.size());
        while (end < table.rows.size() && table.rows[end - 1].stays) {
            ++end;
        }
        return end;
    }

    /// As many rows as find room, group beside group; the first that does not.
    std::size_t AddRows(const LaidTable& table, std::size_t first)
    {
        const double room = Bottom() - m_y;
        const double share =
            HeightOf(table.rows, first, table.rows.size()) / static_cast<double>(table.groups);
        const double top = m_y;
        double lowest = top;
        std::size_t next = first;
        for (std::size_t group = 0; group < table.groups; ++group) {
            const double x = kReportMargin + static_cast<double>(group) * (table.group + kGroupGap);
            double y = top;
            const auto wants = [&] {
                return y - top < share || (next > first && table.rows[next - 1].stays);
            };
            while (next < table.rows.size() && wants() && HasRoom(table, next, top + room - y)) {
                PaintRowAt(table, table.rows[next], {x, y});
                y += table.rows[next++].height;
            }
            if (next == first) { // a row that is higher than a page
                PaintRowAt(table, table.rows[next++], {x, y});
            }
            lowest = std::max(lowest, y);
        }
        m_y = lowest;
        return next;
    }

    /// Whether a row finds room, together with those that it must not be parted from.
    static bool HasRoom(const LaidTable& table, std::size_t row, double room)
    {
        std::size_t last = row;
        while (last + 1 < table.rows.size() && table.rows[last].stays) {
            ++last;
        }
        return HeightOf(table.rows, row, last + 1) <= room;
    }

    void PaintRowAt(const LaidTable& table, const LaidRow& row, Point at)
    {
        const Font font = PaperFont(kRowText, row.bold ? Font::kBold : Font::kNormal);
        double x = at.x;
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            double y = at.y;
            for (const std::string& line : row.cells[i]) {
                Text(x, y, line, font);
                y += kRowText;
            }
            x += row.spans ? 0 : table.columns[i] + kColumnGap;
        }
        if (!row.spans && !row.bold) {
            Rule(at.x, at.y + row.height - kRowGap / 3, table.group);
        }
    }

    void AddMargins(PageContent& page, std::size_t number)
    {
        const Font font = PaperFont(kSmallText);
        const auto add = [&](double x, double y, const std::string& text) {
            page.texts.push_back({PaperPixel({x, y}), text, font, kReportFaint});
        };
        add(kReportMargin, kRunningAt,
            CutToWidth(Tamed(m_report.title, kLongestCell, false), font, m_width * kUnitsPerMm));
        const std::string place =
            FormatText("%d / %d", static_cast<int>(number), static_cast<int>(m_pages.size()));
        const double y = m_paper.height - kNumberAt;
        add(kReportMargin + m_width - WidthInMm(place, font), y, place);
        if (m_full && number == m_pages.size()) {
            add(kReportMargin, y, kCutShort.In(m_language));
        }
    }

    const PaperReport& m_report;
    const PaperSize& m_paper;
    int m_language;
    double m_width;
    double m_y = kBodyTop;
    bool m_full = false;
    std::vector<std::shared_ptr<PageContent>> m_pages;
};

} // namespace

PaperDocument LayOutReport(const PaperReport& report, const PaperSize& paper, int language)
{
    return ReportFlow(report, paper, language).LayOut();
}
