#include "painting/PainterSurface.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPicture>

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr Colour kRed{255, 0, 0};
constexpr Colour kBlue{0, 0, 255};
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

QImage Painted(int width, int height, const std::function<void(Surface&)>& paint)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PainterSurface surface(painter, width, height);
    paint(surface);
    return image;
}

/// The picture as text: a row a string, `.` for white, `r` and `b`, `?` for any other colour.
std::vector<std::string> Rows(const QImage& image)
{
    std::vector<std::string> rows;
    for (int y = 0; y < image.height(); ++y) {
        std::string row;
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            row += pixel == 0xFFFFFFFF ? '.' : pixel == 0xFFFF0000 ? 'r' : pixel == 0xFF0000FF ? 'b' : '?';
        }
        rows.push_back(row);
    }
    return rows;
}

using Picture = std::vector<std::string>;

/// The smallest rectangle that holds all pixels that are not white.
QRect Inked(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != 0xFFFFFFFF) {
                ink = ink.united(QRect(x, y, 1, 1));
            }
        }
    }
    return ink;
}

TEST(PainterSurface, FillsFromLeftTopUpToRightBottom)
{
    EXPECT_EQ((Picture{".....", ".rr..", ".rr..", "....."}), Rows(Painted(5, 4, [](Surface& surface) {
                  surface.FillRect({1, 1, 3, 3}, kRed);
                  surface.FillRect({2, 2, 2, 4}, kBlue);
                  surface.FillRect({3, 3, 1, 1}, kBlue);
              })));
}

TEST(PainterSurface, DrawsALineWithBothEnds)
{
    EXPECT_EQ((Picture{"r....", ".rr..", "...rr"}), Rows(Painted(5, 3, [](Surface& surface) {
                  surface.Line({0, 0}, {4, 2}, kRed);
              })));
    EXPECT_EQ((Picture{"...", ".r.", ".r.", ".r."}), Rows(Painted(3, 4, [](Surface& surface) {
                  surface.Line({1, 3}, {1, 1}, kRed);
              })));
    EXPECT_EQ((Picture{"...", ".r."}), Rows(Painted(3, 2, [](Surface& surface) {
                  surface.Line({1, 1}, {1, 1}, kRed);
              })));
    EXPECT_EQ((Picture{"..r", ".r.", "r.."}), Rows(Painted(3, 3, [](Surface& surface) {
                  surface.Line({2, 0}, {0, 2}, kRed);
              })));
}

TEST(PainterSurface, KeepsALinesPixelsWhereverItIsCut)
{
    const Pixel ends[][2] = {
        {{-37, -11}, {91, 66}}, {{20, 90}, {41, -50}}, {{-500, 7}, {800, 33}}, {{60, 10}, {-9, 11}}};
    for (const auto& [from, to] : ends) {
        const QImage whole = Painted(60, 50, [&](Surface& surface) { surface.Line(from, to, kRed); });
        for (const Pixel scroll : {Pixel{1, 0}, Pixel{17, 9}, Pixel{39, 29}}) {
            const QImage part = Painted(20, 20, [&](Surface& surface) {
                surface.Line({from.x - scroll.x, from.y - scroll.y}, {to.x - scroll.x, to.y - scroll.y},
                             kRed);
            });
            EXPECT_EQ(whole.copy(scroll.x, scroll.y, 20, 20), part) << from.x << " " << scroll.x;
        }
    }
}

TEST(PainterSurface, FillsAndOutlinesAPolygon)
{
    const Pixel triangle[] = {{0, 0}, {4, 4}, {0, 4}};
    EXPECT_EQ((Picture{"b....", "bb...", "brb..", "brrb.", "bbbbb"}),
              Rows(Painted(5, 5, [&](Surface& surface) { surface.Polygon(triangle, kBlue, kRed); })));
}

TEST(PainterSurface, FillsAPolygonThatCrossesItselfByTurns)
{
    // Two squares in one line of points: what lies inside both stays open.
    const Pixel squares[] = {{0, 0}, {8, 0}, {8, 8}, {0, 8}, {0, 0}, {2, 2}, {2, 6}, {6, 6}, {6, 2}, {2, 2}};
    const QImage image = Painted(9, 9, [&](Surface& surface) { surface.Polygon(squares, kRed, kRed); });
    EXPECT_EQ(0xFFFF0000, image.pixel(1, 4));
    EXPECT_EQ(0xFFFFFFFF, image.pixel(4, 5));
}

TEST(PainterSurface, KeepsAPolygonsPixelsWhereverItIsCut)
{
    const Pixel shape[] = {{-20, 5}, {70, -30}, {55, 88}, {13, 20}};
    const QImage whole = Painted(60, 50, [&](Surface& surface) { surface.Polygon(shape, kBlue, kRed); });
    const Pixel scroll{23, 11};
    std::vector<Pixel> moved;
    for (const Pixel point : shape) {
        moved.push_back({point.x - scroll.x, point.y - scroll.y});
    }
    const QImage part = Painted(20, 20, [&](Surface& surface) { surface.Polygon(moved, kBlue, kRed); });
    EXPECT_EQ(whole.copy(scroll.x, scroll.y, 20, 20), part);
}

TEST(PainterSurface, OutlinesTheEllipseThatFillsItsBox)
{
    const QImage image = Painted(30, 20, [](Surface& surface) { surface.Ellipse({3, 2, 24, 17}, kRed, 1); });
    EXPECT_EQ(QRect(3, 2, 21, 15), Inked(image));
    EXPECT_EQ(0xFFFFFFFF, image.pixel(13, 9)) << "not filled";
}

TEST(PainterSurface, DrawsAnArcCounterClockwise)
{
    // From the right over the top to the left: the upper half.
    const QImage half = Painted(21, 21, [](Surface& surface) {
        surface.Arc({0, 0, 21, 21}, {20, 10}, {0, 10}, kRed);
    });
    EXPECT_EQ(QRect(0, 0, 21, 11), Inked(half));
    const QImage whole = Painted(21, 21, [](Surface& surface) {
        surface.Arc({0, 0, 21, 21}, {20, 10}, {30, 10}, kRed);
    });
    EXPECT_EQ(QRect(0, 0, 21, 21), Inked(whole)) << "equal directions give the whole outline";
}

TEST(PainterSurface, ClosesAndFillsAChord)
{
    const QImage lower = Painted(21, 21, [](Surface& surface) {
        surface.Chord({0, 0, 21, 21}, {0, 10}, {20, 10}, kBlue, kRed);
    });
    EXPECT_EQ(QRect(0, 10, 21, 11), Inked(lower));
    EXPECT_EQ(0xFFFF0000, lower.pixel(10, 15));
    EXPECT_EQ(0xFF0000FF, lower.pixel(10, 20));
}

TEST(PainterSurface, CopiesABlockOfPixels)
{
    const Colour pixels[] = {kRed, kWhite, kBlue, kBlue, kBlue, kRed};
    EXPECT_EQ((Picture{"....", ".r.b", ".bbr"}), Rows(Painted(4, 3, [&](Surface& surface) {
                  surface.Image({1, 1}, 3, pixels);
              })));
    EXPECT_EQ((Picture{".b", "br"}), Rows(Painted(2, 2, [&](Surface& surface) {
                  surface.Image({-1, 0}, 3, pixels);
              })));
}

TEST(PainterSurface, SetsTextBelowAndRightOfItsCorner)
{
    for (const std::int32_t height : {10, 14, 24}) {
        const QImage image = Painted(200, 100, [&](Surface& surface) {
            surface.Text({20, 30}, "Hg\xC4", {height, Font::kNormal}, kBlack);
        });
        const QRect ink = Inked(image);
        EXPECT_TRUE(QRect(19, 30, 3 * height, height + 1).contains(ink)) << height << " " << ink.top();
        EXPECT_GT(ink.height(), height * 7 / 10) << height;
    }
}

TEST(PainterSurface, RunsUprightTextUpward)
{
    const QImage image = Painted(60, 100, [](Surface& surface) {
        surface.Text({20, 80}, "1200", {10, Font::kNormal, true}, kBlack);
    });
    const QRect ink = Inked(image);
    EXPECT_TRUE(QRect(20, 50, 11, 31).contains(ink)) << ink.left() << " " << ink.top();
    EXPECT_GT(ink.height(), ink.width());
    EXPECT_GT(ink.bottom(), 75) << "it starts at its corner";
}

TEST(PainterSurface, WritesBoldTextHeavier)
{
    const auto ink = [](std::int32_t weight) {
        const QImage image = Painted(200, 30, [&](Surface& surface) {
            surface.Text({2, 2}, "Hauptspiegel", {24, weight}, kBlack);
        });
        int dark = 0;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            dark += 255 - qGray(image.pixel(i % image.width(), i / image.width()));
        }
        return dark;
    };
    EXPECT_GT(ink(Font::kBold), ink(Font::kNormal) * 5 / 4);
}

TEST(PainterSurface, ReadsTextAsCodePage1252)
{
    const auto written = [](std::string_view text) {
        return Painted(80, 30, [&](Surface& surface) {
            surface.Text({2, 2}, text, {20, Font::kNormal}, kBlack);
        });
    };
    EXPECT_NE(written("\x80"), written("?")) << "the euro sign";
    EXPECT_NE(written("\xF6"), written("o"));
    EXPECT_NE(written("\xF6"), written("\xC3\xB6")) << "not UTF-8";
}

TEST(PainterSurface, WrapsTextAndGivesTheHeightOfItsLines)
{
    QImage image = Painted(300, 200, [](Surface& surface) {
        const Font font{14, Font::kNormal};
        EXPECT_EQ(14, surface.WrappedText({2, 2, 160, 1002}, "Durchmesser:", font, kBlack));
        EXPECT_EQ(28,
                  surface.WrappedText({2, 30, 160, 1030}, "Durchmesser der kleinen Achse:", font, kBlack));
        EXPECT_EQ(0, surface.WrappedText({2, 90, 160, 1030}, "", font, kBlack));
        EXPECT_EQ(72, surface.WrappedText({2, 100, 160, 1100},
                                          "Durchmesser der kleinen Achse:", {24, Font::kNormal}, kBlack));
    });
    EXPECT_LT(Inked(image).right(), 200);
}

using Shape = std::function<void(Surface&, Pixel, Pixel)>;

TEST(PainterSurface, SurvivesAnyCoordinates)
{
    const Shape shapes[] = {
        [](Surface& s, Pixel a, Pixel b) {
            s.FillRect({a.x, a.y, b.x, b.y}, kRed);
        },
        [](Surface& s, Pixel a, Pixel b) { s.Line(a, b, kRed); },
        [](Surface& s, Pixel a, Pixel b) {
            s.Polygon(std::vector<Pixel>{a, b, {a.x, b.y}, {3, 4}}, kRed, kBlue);
        },
        [](Surface& s, Pixel a, Pixel b) {
            s.Ellipse({a.x, a.y, b.x, b.y}, kRed, 2);
        },
        [](Surface& s, Pixel a, Pixel b) {
            s.Arc({a.x, a.y, b.x, b.y}, b, a, kRed);
        },
        [](Surface& s, Pixel a, Pixel b) {
            s.Chord({a.x, a.y, b.x, b.y}, a, b, kRed, kBlue);
        },
        [](Surface& s, Pixel a, Pixel) {
            s.Image(a, 1, std::vector<Colour>{kRed, kBlue});
        },
        [](Surface& s, Pixel a, Pixel) {
            s.Text(a, "text", {14, Font::kNormal, true}, kRed);
        },
        [](Surface& s, Pixel a, Pixel b) {
            s.WrappedText({a.x, a.y, b.x, b.y}, "some text", {14, Font::kNormal}, kRed);
        },
    };
    const std::int32_t places[] = {kLeast, kLeast + 1, -40000, -1, 0, 5, 40000, kMost - 1, kMost};
    const auto paintAll = [&](Surface& surface) {
        for (const Shape& shape : shapes) {
            for (const std::int32_t x : places) {
                for (const std::int32_t y : places) {
                    shape(surface, {x, y}, {y, 7});
                    shape(surface, {x, y}, {kMost, y});
                    shape(surface, {x, y}, {kLeast, kMost});
                }
            }
        }
    };
    EXPECT_FALSE(Painted(40, 30, paintAll).isNull());
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    {
        QPainter painter(&writer);
        PainterSurface surface(painter, 40, 30);
        paintAll(surface);
    }
    EXPECT_TRUE(file.data().trimmed().endsWith("%%EOF")) << "the page is written to its end";
}

TEST(PainterSurface, DrawsTheSeenPartOfALineThatIsFarTooLong)
{
    EXPECT_EQ((Picture{".....", "rrrrr", "....."}), Rows(Painted(5, 3, [](Surface& surface) {
                  surface.Line({kLeast, 1}, {kMost, 1}, kRed);
              })));
    EXPECT_EQ((Picture{"r..", ".r.", "..r"}), Rows(Painted(3, 3, [](Surface& surface) {
                  surface.Line({kLeast + 1, kLeast + 1}, {kMost, kMost}, kRed);
              })));
}

/// What a page of lines, not of pixels, shows of a picture: painted to `page`, played back in the middle of
/// an image three times its size, so that what lies outside the page is seen too.
QImage PlayedBack(QSize page, const std::function<void(Surface&)>& paint)
{
    QPicture picture;
    {
        QPainter painter(&picture);
        PainterSurface surface(painter, page.width(), page.height());
        paint(surface);
    }
    QImage image(page * 3, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawPicture(page.width(), page.height(), picture);
    return image;
}

TEST(PainterSurface, DrawsNothingOfALineBesideAPage)
{
    const std::pair<Pixel, Pixel> lines[] = {
        {{-15, -5}, {35, -5}}, {{-15, 12}, {35, 12}}, // above, below
        {{-4, -8}, {-4, 18}},  {{25, -8}, {25, 18}},  // left, right
        {{-15, 4}, {-3, 6}},   {{23, 4}, {35, 6}},    // short ones beside it
        {{-9, 3}, {4, -8}},    {{16, 18}, {30, 4}},   // past a corner
        {{-12, 5}, {-2, 5}},   {{5, -9}, {5, -2}},    // level and upright ones that end before it
        {{22, 5}, {30, 5}},    {{5, 12}, {5, 18}},
    };
    for (const auto& [from, to] : lines) {
        const QImage image = PlayedBack({20, 10}, [&](Surface& surface) { surface.Line(from, to, kRed); });
        EXPECT_EQ(QRect(), Inked(image)) << from.x << " " << from.y << " to " << to.x << " " << to.y;
    }
}

TEST(PainterSurface, CutsALineAtTheEdgesOfAPage)
{
    const QRect page(20, 10, 21, 11); // with the pixel that a line's end at an edge may take
    const std::pair<Pixel, Pixel> lines[] = {{{-15, 5}, {35, 5}},
                                             {{35, 5}, {-15, 5}},
                                             {{7, -8}, {7, 18}},
                                             {{7, 18}, {7, -8}},
                                             {{-10, -5}, {30, 15}}};
    for (const auto& [from, to] : lines) {
        const QRect ink =
            Inked(PlayedBack({20, 10}, [&](Surface& surface) { surface.Line(from, to, kRed); }));
        EXPECT_TRUE(page.contains(ink)) << from.x << " " << from.y;
        EXPECT_TRUE(ink.width() >= 19 || ink.height() >= 9)
            << "from edge to edge: " << from.x << " " << from.y;
    }
    // One that lies within comes whole.
    EXPECT_EQ(QRect(23, 14, 5, 1), Inked(PlayedBack({20, 10}, [](Surface& surface) {
                  surface.Line({3, 4}, {7, 4}, kRed);
              })));
}

TEST(PainterSurface, FillsNothingBesideAPage)
{
    const struct {
        PixelRect rect;
        QRect filled;
    } cases[] = {
        {{-9, 2, 5, 4}, {20, 12, 5, 2}},  // over the left edge
        {{15, 2, 39, 4}, {35, 12, 5, 2}}, // the right one
        {{3, -7, 5, 4}, {23, 10, 2, 4}},  // the upper one
        {{3, 8, 5, 19}, {23, 18, 2, 2}},  // the lower one
        {{-9, -9, 39, 19}, {20, 10, 20, 10}},
        {{-9, 2, -1, 4}, {}},
        {{20, 2, 30, 4}, {}},
        {{3, 10, 5, 15}, {}},
        {{3, -5, 5, 0}, {}},
    };
    for (const auto& [rect, filled] : cases) {
        EXPECT_EQ(filled,
                  Inked(PlayedBack({20, 10}, [&](Surface& surface) { surface.FillRect(rect, kRed); })))
            << rect.left << " " << rect.top;
    }
}

TEST(PainterSurface, ShowsWhatReachesInOfATextThatStartsAtAnEdge)
{
    const Font plain{20, Font::kNormal};
    const Font upright{20, Font::kNormal, true};
    const struct {
        const char* what;
        Pixel at;
        Font font;
        QRect within; ///< where its ink must be, in a picture of 100 by 60
    } cases[] = {
        {"right", {97, 20}, plain, {97, 20, 3, 21}},
        {"left, beginning outside", {-45, 20}, plain, {0, 20, 85, 21}},
        {"lower", {30, 52}, plain, {30, 52, 70, 8}},
        {"upper", {30, -12}, plain, {30, 0, 70, 9}},
        {"upright, right", {92, 55}, upright, {92, 0, 8, 55}},
        {"upright, left", {-12, 55}, upright, {0, 0, 9, 55}},
        {"upright, beginning below", {40, 90}, upright, {40, 0, 21, 60}},
        {"upright, upper", {40, 4}, upright, {40, 0, 21, 4}},
    };
    for (const auto& one : cases) {
        const QImage image =
            Painted(100, 60, [&](Surface& surface) { surface.Text(one.at, "MHMHMHMH", one.font, kBlack); });
        const QRect ink = Inked(image);
        EXPECT_FALSE(ink.isEmpty()) << one.what;
        EXPECT_TRUE(one.within.contains(ink)) << one.what << " " << ink.left() << " " << ink.top();
    }
}

TEST(PainterSurface, CutsATextThatNoPageCanHold)
{
    const std::string endless(50'000'000, 'x');
    std::string words;
    for (int i = 0; i < 1'000'000; ++i) {
        words += "word ";
    }
    Painted(400, 300, [&](Surface& surface) {
        surface.Text({2, 2}, endless, {14, Font::kNormal}, kBlack);
        EXPECT_EQ(14, surface.WrappedText({2, 2, 400, 1000}, endless, {14, Font::kNormal}, kBlack));
        EXPECT_GT(surface.WrappedText({2, 2, 400, 1000}, words, {14, Font::kNormal}, kBlack), 1000);
    });
}

} // namespace
