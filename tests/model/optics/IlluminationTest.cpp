#include "model/optics/Illumination.h"

#include "model/record/OrrevaData.h"
#include "support/DirectIllumination.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr double kHuge = 1e5;

/// A mirror of 200 mm, f 1000, whose secondary alone can cut: as a mirror it is seen 4 m / 2 wide, and its
/// centre goes 3 h off; its shadow goes 0.75 h the other way.
IlluminationStops SecondaryAlone(double m) { return {200, 1000, 250, m, 50, kHuge, kHuge, 800}; }

/// Area that two circles have in common, by the angles at which they see their chord.
double Lens(double r1, double r2, double apart)
{
    if (apart >= r1 + r2) {
        return 0;
    }
    if (apart <= std::fabs(r1 - r2)) {
        return M_PI * std::pow(std::min(r1, r2), 2);
    }
    const double half1 = std::acos((apart + (r1 - r2) * (r1 + r2) / apart) / (2 * r1));
    const double half2 = std::acos((apart + (r2 - r1) * (r1 + r2) / apart) / (2 * r2));
    return r1 * r1 * (half1 - std::sin(2 * half1) / 2) + r2 * r2 * (half2 - std::sin(2 * half2) / 2);
}

TEST(Illumination, IsTheLensOfTwoCirclesLessTheShadow)
{
    const IlluminationStops stops = SecondaryAlone(60); // seen as a circle of the radius 120
    ASSERT_TRUE(HasIllumination(stops));
    // The shadow, 30 in radius and 0.75 h off on the other side, is whole up to 0.75 h + 30 = 120 - 3 h.
    for (const double h : {0.0, 1e-9, 3.0, 6.66, 20.0 / 3, 6.67, 10.0, 20.0, 24.0}) {
        const double expected = (Lens(100, 120, 3 * h) - M_PI * 900) / (M_PI * 10000);
        EXPECT_NEAR(expected, LightAt(stops, h), 1e-13) << h;
        EXPECT_NEAR(LightAt(stops, h), LightAt(stops, -h), 1e-15) << h;
    }
    // Where the two circles touch from outside and beyond there is none.
    EXPECT_NEAR(0, LightAt(stops, 220.0 / 3), 1e-15);
    EXPECT_EQ(0, LightAt(stops, 75));
}

TEST(Illumination, IsTheLensOfTubeAndMirrorWhereTheTubeAloneCuts)
{
    // The tube's front, 190 wide, goes 1.5 h off; the secondary is 400 wide as a mirror and goes 9 h off.
    const IlluminationStops stops{200, 1000, 100, 40, 50, kHuge, 190, 1500};
    for (const double h : {0.0, 0.5, 1.0, 5.0, 10.0}) {
        const double expected = (Lens(100, 95, 1.5 * h) - M_PI * 400) / (M_PI * 10000);
        EXPECT_NEAR(expected, LightAt(stops, h), 1e-13) << h;
    }
    EXPECT_NEAR(0.95 * 0.95 - 0.04, CentreLight(stops), 1e-15);
}

TEST(Illumination, KeepsTheShadowAndGainsWhatItLeaves)
{
    const IlluminationStops stops = SecondaryAlone(60);
    EXPECT_NEAR(0.91, LightAt(stops, 0), 1e-15);
    EXPECT_NEAR(0.91, LightAt(stops, 20.0 / 3), 1e-15); // the circles touch from inside
    // A mirror of 2000 mm seen in a secondary as wide as it: at h = 1500 the shadow, 1000 in radius and 1350
    // off, has left the primary of 300 mm.
    const IlluminationStops wide{300, 1000, 100, 290, 50, kHuge, kHuge, 0};
    EXPECT_NEAR(1 - std::pow(290.0 / 300, 2), CentreLight(wide), 1e-15);
    EXPECT_NEAR(1 - Lens(150, 145, 0.9 * 100) / (M_PI * 22500), LightAt(wide, 100), 1e-13);
}

TEST(Illumination, OfAMirrorSeenInAnEqualCircle)
{
    // m f / z = D: equal circles, which touch all around at the centre.
    const IlluminationStops stops = SecondaryAlone(50);
    EXPECT_NEAR(0.9375, LightAt(stops, 0), 1e-15);
    for (const double h : {1e-12, 1e-6, 0.01, 1.0, 10.0}) {
        EXPECT_NEAR((Lens(100, 100, 3 * h) - M_PI * 625) / (M_PI * 10000), LightAt(stops, h), 1e-13) << h;
    }
}

TEST(Illumination, NeedsEveryLengthAndLightAtTheCentre)
{
    const IlluminationStops good = SecondaryAlone(60);
    EXPECT_TRUE(HasIllumination(good));
    constexpr double IlluminationStops::*kLengths[] = {
        &IlluminationStops::D, &IlluminationStops::f, &IlluminationStops::z, &IlluminationStops::m,
        &IlluminationStops::q, &IlluminationStops::d, &IlluminationStops::I};
    for (const auto length : kLengths) {
        for (const double bad : {0.0, -1.0, HUGE_VAL, -HUGE_VAL, std::numeric_limits<double>::quiet_NaN()}) {
            IlluminationStops stops = good;
            stops.*length = bad;
            EXPECT_FALSE(HasIllumination(stops)) << bad;
            EXPECT_TRUE(std::isnan(FieldDiameterAtShare(stops, 0.75))) << bad;
        }
    }
    for (const auto path : {&IlluminationStops::z, &IlluminationStops::q}) {
        IlluminationStops stops = good;
        stops.*path = std::nextafter(good.f, 0);
        EXPECT_TRUE(HasIllumination(stops));
        stops.*path = good.f;
        EXPECT_FALSE(HasIllumination(stops));
    }
    IlluminationStops endless = good;
    endless.a = -HUGE_VAL;
    EXPECT_FALSE(HasIllumination(endless));
}

TEST(Illumination, HasNoneWhereTheShadowHidesTheMirror)
{
    EXPECT_TRUE(HasIllumination(SecondaryAlone(std::nextafter(200, 0))));
    EXPECT_FALSE(HasIllumination(SecondaryAlone(200)));
    IlluminationStops stops = SecondaryAlone(60);
    stops.I = 60; // a tube as wide as the shadow
    EXPECT_FALSE(HasIllumination(stops));
    stops.I = 60.001;
    EXPECT_TRUE(HasIllumination(stops));
    stops.I = kHuge;
    stops.d = 3; // seen 20 times as wide
    EXPECT_FALSE(HasIllumination(stops));
    stops.d = 3.001;
    EXPECT_TRUE(HasIllumination(stops));
}

TEST(Illumination, FullyLitFieldByTheStopThatCutsFirst)
{
    // The circle of 120 clears the mirror by 20 and goes 3 h off: h = 20 / 3.
    IlluminationStops stops = SecondaryAlone(60);
    EXPECT_NEAR(40.0 / 3, FullyLitField(stops), 1e-12);
    EXPECT_EQ(CuttingStop::kNone, CuttingStopAt(stops, 6.66));
    EXPECT_EQ(CuttingStop::kSecondary, CuttingStopAt(stops, 6.67));
    stops.I = 204; // 2 mm, 0.8 h: h = 2.5
    EXPECT_NEAR(5, FullyLitField(stops), 1e-12);
    EXPECT_EQ(CuttingStop::kNone, CuttingStopAt(stops, 2.49));
    EXPECT_EQ(CuttingStop::kTube, CuttingStopAt(stops, -2.51));
    EXPECT_EQ(CuttingStop::kTube, CuttingStopAt(stops, 6.67)); // still much more than the secondary
    EXPECT_EQ(CuttingStop::kSecondary, CuttingStopAt(stops, 15));
    stops.d = 10.1; // seen 20 times as wide, 202: 1 mm, 19 h
    EXPECT_NEAR(2.0 / 19, FullyLitField(stops), 1e-12);
    EXPECT_EQ(CuttingStop::kDrawtube, CuttingStopAt(stops, 0.06));
    EXPECT_NEAR(5, FieldFreeOf(stops, CuttingStop::kTube), 1e-12);
    EXPECT_NEAR(40.0 / 3, FieldFreeOf(stops, CuttingStop::kSecondary), 1e-12);
    stops.d = 9.9;
    EXPECT_EQ(0, FullyLitField(stops));
    EXPECT_EQ(CuttingStop::kDrawtube, CuttingStopAt(stops, 0));
    stops.a = 0; // a tube that ends at the mirror never cuts it
    EXPECT_EQ(HUGE_VAL, FieldFreeOf(stops, CuttingStop::kTube));
    stops.I = 200;
    EXPECT_EQ(HUGE_VAL, FieldFreeOf(stops, CuttingStop::kTube));
}

TEST(Illumination, FieldAtAShareByTheLens)
{
    const IlluminationStops stops = SecondaryAlone(60);
    for (const double share : {0.95, 0.9, 0.8, 0.7}) {
        // The same place by halving the closed form; the shadow is whole that far.
        double in = 0;
        double out = 24; // 0.75 h + 30 = 120 - 3 h
        for (int i = 0; i < 100; ++i) {
            const double h = (in + out) / 2;
            (Lens(100, 120, 3 * h) - M_PI * 900 > share * M_PI * 9100 ? in : out) = h;
        }
        ASSERT_LT(out, 23.9) << share;
        EXPECT_NEAR(2 * out, FieldDiameterAtShare(stops, share), 1e-9) << share;
    }
    for (const double share : {0.0, 1.0, -0.5, 2.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_TRUE(std::isnan(FieldDiameterAtShare(stops, share))) << share;
    }
}

/// A tube narrower than the mirror takes light at once, then the large shadow leaves the mirror and gives
/// some back, more than there was at the centre, before the other stops take it for good.
constexpr IlluminationStops kRisingAgain{2, 17.19, 4.358, 1.922, 1.087, 2.811, 1.964, 11.97};

TEST(Illumination, FirstOfSeveralPlacesWithOneLight)
{
    const double centre = CentreLight(kRisingAgain);
    const auto share_at = [&](double h) { return LightAt(kRisingAgain, h) / centre; };
    double lowest = 1;
    double lowest_at = 0;
    for (int i = 1; i < 800; ++i) {
        if (share_at(i * 1e-3) < lowest) {
            lowest = share_at(i * 1e-3);
            lowest_at = i * 1e-3;
        }
    }
    ASSERT_LT(lowest, 0.7);
    ASSERT_GT(share_at(1.1), 1.1);
    for (const double share : {0.99, 0.9, 0.75, lowest + 0.001, lowest + 1e-7, lowest + 1e-9}) {
        const double h = FieldDiameterAtShare(kRisingAgain, share) / 2;
        EXPECT_LT(h, lowest_at + 1e-3) << share;
        EXPECT_NEAR(share, share_at(h), 1e-9) << share;
    }
    // Below the dip there is but the last place.
    const double last = FieldDiameterAtShare(kRisingAgain, lowest - 0.001) / 2;
    EXPECT_GT(last, 1.1);
    EXPECT_NEAR(lowest - 0.001, share_at(last), 1e-9);
}

class RandomTelescopes {
public:
    /// Sensible and nonsense ones by turns, all with light.
    IlluminationStops Next()
    {
        IlluminationStops stops;
        do {
            stops = m_sensible ? Sensible() : Nonsense();
        } while (!HasIllumination(stops));
        m_sensible = !m_sensible;
        return stops;
    }
    double Between(double from, double to)
    {
        return from + (to - from) * static_cast<double>(m_bits() >> 11) / 0x1p53;
    }

private:
    double AnySize(double from, double to) { return std::exp(Between(std::log(from), std::log(to))); }

    IlluminationStops Sensible()
    {
        IlluminationStops s;
        s.D = AnySize(60, 800);
        s.f = s.D * Between(2.5, 12);
        s.z = s.D / 2 + Between(20, 250);
        s.m = s.D * Between(0.1, 0.6);
        s.q = Between(20, s.z);
        s.d = Between(20, 80);
        s.I = s.D * Between(0.9, 1.4);
        s.a = s.f - s.z + Between(0, 400);
        return s;
    }
    IlluminationStops Nonsense()
    {
        IlluminationStops s;
        s.D = AnySize(1e-2, 1e5);
        s.f = AnySize(1e-2, 1e5);
        s.z = s.f * (Between(0, 1) < 0.5 ? AnySize(1e-6, 1) : Between(0, 1));
        s.m = AnySize(1e-3, 1e5);
        s.q = s.f * Between(0, 1);
        s.d = AnySize(1e-2, 1e5);
        s.I = AnySize(1e-2, 1e5);
        s.a = (Between(0, 1) < 0.5 ? -1 : 1) * AnySize(1e-3, 1e6);
        return s;
    }

    std::mt19937_64 m_bits{15};
    bool m_sensible = true;
};

TEST(Illumination, AgreesWithRefinedIntegrationOverAnyTelescopes)
{
    RandomTelescopes telescopes;
    double worst = 0;
    for (int i = 0; i < 500; ++i) {
        const IlluminationStops stops = telescopes.Next();
        const double reach = FieldDiameterAtShare(stops, 0.75) / 2;
        for (const double h : {0.0, stops.d / 4, stops.d / 2, reach, reach * telescopes.Between(0, 3)}) {
            const double difference = std::fabs(RefinedLight(stops, h) - LightAt(stops, h));
            ASSERT_LT(difference, 1e-9) << i << " at " << h;
            worst = std::max(worst, difference);
        }
    }
    RecordProperty("LargestDifference", std::to_string(worst * 1e15) + "e-15");
}

TEST(Illumination, AgreesWithACountOfPoints)
{
    RandomTelescopes telescopes;
    for (int i = 0; i < 40; ++i) {
        const IlluminationStops stops = telescopes.Next();
        const double h = FieldDiameterAtShare(stops, 0.75) / 2 * telescopes.Between(0, 2);
        EXPECT_NEAR(CountedLight(stops, h, 200000), LightAt(stops, h), 2e-3) << i << " at " << h;
    }
}

TEST(Illumination, FieldAtAShareIsTheFirstPlaceOfItsLight)
{
    RandomTelescopes telescopes;
    for (int i = 0; i < 200; ++i) {
        const IlluminationStops stops = telescopes.Next();
        const double level = 0.75 * CentreLight(stops);
        const double h = FieldDiameterAtShare(stops, 0.75) / 2;
        EXPECT_LE(LightAt(stops, h), level + 1e-13) << i;
        for (int step = 0; step < 500; ++step) {
            ASSERT_GT(LightAt(stops, h * step / 500), level - 1e-12) << i << " before " << h;
        }
    }
}

TEST(Illumination, EndsForAnyNumbers)
{
    const double values[] = {1e-300, 1e-30, 1e-3, 1, 300, 1e30, 1e300, 1.7e308};
    for (const double D : values) {
        for (const double f : values) {
            for (const double share_of_f : {1e-12, 0.5, 1 - 1e-12}) {
                for (const double m : values) {
                    for (const double a : {-1e300, 0.0, 1e300}) {
                        const IlluminationStops stops{D, f, f * share_of_f, m, f * share_of_f, 50, 300, a};
                        const double field = FieldDiameterAtShare(stops, 0.75);
                        EXPECT_EQ(HasIllumination(stops), field >= 0)
                            << D << ' ' << f << ' ' << m << ' ' << a;
                        const double light = HasIllumination(stops) ? LightAt(stops, field) : 0;
                        EXPECT_TRUE(light >= 0 && light <= 1) << light;
                    }
                }
            }
        }
    }
}

TEST(Illumination, ReadsTheStopsOfARecord)
{
    COrrevaData telescope;
    telescope.GetFocalPlaneHeight(); // settles the defaults
    telescope.GetFocalPlaneHeight();
    const IlluminationStops stops = ReadIlluminationStops(telescope);
    // 286 / 2 and 6.25 of wall, and a focuser of 40, 10 to spare and half of a travel of 30
    EXPECT_EQ((IlluminationStops{250, 1500, 214.25, 46.482, 65, 50.8, 286, 1285.75 + 125}), stops);
}

} // namespace
