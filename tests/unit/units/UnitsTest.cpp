#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "host/units/AngularUnits.h"
#include "host/units/LinearUnits.h"

namespace units {
namespace {

constexpr double PI = std::numbers::pi;
constexpr double TURN = 2 * PI;

TEST(LinearUnits, ShowEachNotationAndCarry) {
    EXPECT_EQ(distanceText(17.5, 1, 4), L"1.7500E+01");
    EXPECT_EQ(distanceText(17.5, 2, 4), L"17.5000");
    EXPECT_EQ(distanceText(17.5, 2, -1), L"17.5000");
    EXPECT_EQ(distanceText(17.5, 3, 4), L"1'-5.5000\"");
    EXPECT_EQ(distanceText(17.5, 4, 4), L"1'-5 1/2\"");
    EXPECT_EQ(distanceText(17.5, 5, 4), L"17 1/2");
    EXPECT_EQ(distanceText(11.99, 3, 0), L"1'-0\"");
    EXPECT_EQ(distanceText(11.99, 4, 2), L"1'-0\"");
    EXPECT_EQ(distanceText(12.5, 4, 1), L"1'-0 1/2\"");
    EXPECT_EQ(distanceText(0.5, 4, 3), L"1/2\"");
    EXPECT_EQ(distanceText(0, 4, 3), L"0\"");
    EXPECT_EQ(distanceText(0.999, 5, 2), L"1");
    EXPECT_EQ(distanceText(-17.5, 4, 1), L"-1'-5 1/2\"");
    EXPECT_EQ(distanceText(-0.00001, 2, 2), L"0.00");
    EXPECT_EQ(distanceText(3, 5, 8), L"3");
    EXPECT_EQ(distanceText(9e14 + 0.5, 5, 1), L"900000000000000 1/2");
}

TEST(LinearUnits, ReadWhatAPersonTypes) {
    EXPECT_EQ(distanceFromText(L"1'6", 4), 18);
    EXPECT_EQ(distanceFromText(L"1'-6\"", 3), 18);
    EXPECT_EQ(distanceFromText(L"1'6-1/2\"", 4), 18.5);
    EXPECT_EQ(distanceFromText(L" 1' 6 1/2\" ", 4), 18.5);
    EXPECT_EQ(distanceFromText(L"2'", 4), 24);
    EXPECT_EQ(distanceFromText(L"6 1/2", 5), 6.5);
    EXPECT_EQ(distanceFromText(L"1/4", 4), 0.25);
    EXPECT_EQ(distanceFromText(L"-.5", 2), -0.5);
    EXPECT_EQ(distanceFromText(L"1.5e3", 1), 1500);
    EXPECT_EQ(distanceFromText(L"-1'-6\"", 4), -18);
    for (const auto* text : {L"1'- 6", L"1' -6", L"1 ' 6 \"", L"1' - 6 - 0/2\"", L"18 \"", L"+ 18"})
        EXPECT_EQ(distanceFromText(text, 4), 18) << text;
    for (const auto* text : {L"-6 -1/2", L"-6- 1/2", L"- 6 - 1/2", L"-6   1/2"})
        EXPECT_EQ(distanceFromText(text, 5), -6.5) << text;
    EXPECT_FALSE(std::signbit(*distanceFromText(L"-0", 2)));
}

TEST(LinearUnits, RefuseWhatIsNoDistance) {
    for (const auto* text : {L"", L"  ", L"-", L".", L"1-2", L"1 2", L"x", L"1.5x", L"--1", L"- -1", L"+-1",
                             L"1 -2", L"- ", L"1e 3", L"1e999"})
        EXPECT_FALSE(distanceFromText(text, 2)) << text;
    for (const auto* text : {L"1/0", L"6 1/0", L"1/", L"1'6\"x", L"1''", L"1'-", L"1' - ", L"'", L"1'-6'",
                             L"1'--6", L"1'+6", L"1'6 -", L"6 -1", L"1 /2", L"6 1/2 1/2", L"\" 6", L"6\"\""})
        EXPECT_FALSE(distanceFromText(text, 4)) << text;
    EXPECT_FALSE(distanceFromText(L"1'6", 2));
    for (const int unit : {-1, 0, 6}) {
        EXPECT_FALSE(distanceFromText(L"1", unit));
        EXPECT_FALSE(distanceText(1, unit, 2));
        EXPECT_FALSE(angleFromText(L"1", unit));
        EXPECT_FALSE(angleText(1, unit, 2));
    }
    EXPECT_FALSE(distanceText(1, 2, 9));
    EXPECT_FALSE(distanceText(1, 2, -2));
    EXPECT_FALSE(distanceText(INFINITY, 2, 2));
    EXPECT_NEAR(*distanceFromText(*distanceText(1e307, 4, 8), 4) / 1e307, 1, 1e-12);
    EXPECT_FALSE(distanceFromText(std::wstring(308, L'9') + L"'", 4));
    EXPECT_FALSE(angleText(NAN, 1, 2));
}

TEST(AngularUnits, ShowEachNotationWithinOneTurn) {
    EXPECT_EQ(angleText(PI / 4, 1, 4), L"45.0000");
    EXPECT_EQ(angleText((45 + 30.25 / 60) / 180 * PI, 2, 6), L"45d30'15.00\"");
    EXPECT_EQ(angleText(PI / 4, 2, 0), L"45d");
    EXPECT_EQ(angleText(PI / 4, 2, 2), L"45d0'");
    EXPECT_EQ(angleText(PI / 4, 3, 4), L"50.0000g");
    EXPECT_EQ(angleText(PI / 4, 4, 4), L"0.7854r");
    EXPECT_EQ(angleText(-PI / 2, 1, 0), L"270");
    EXPECT_EQ(angleText(5 * PI, 1, 0), L"180");
    EXPECT_EQ(angleText(TURN - 1e-9, 1, 2), L"0.00");
    EXPECT_EQ(angleText(TURN - 1e-9, 2, 4), L"0d0'0\"");
    EXPECT_EQ(angleText(TURN - 1e-9, 3, 2), L"0.00g");
    EXPECT_EQ(angleText(-0.01, 4, 1), L"0.0r");
    EXPECT_EQ(angleText(-0.01, 4, 3), L"6.273r");
    EXPECT_EQ(angleText((45.0 + 59.9999 / 60) / 180 * PI, 2, 4), L"46d0'0\"");
}

TEST(AngularUnits, BearingsOfAllQuarters) {
    EXPECT_EQ(angleText(PI / 4, 5, 4), L"N 45d0'0\" E");
    EXPECT_EQ(angleText(3 * PI / 4, 5, 4), L"N 45d0'0\" W");
    EXPECT_EQ(angleText(5 * PI / 4, 5, 4), L"S 45d0'0\" W");
    EXPECT_EQ(angleText(7 * PI / 4, 5, 4), L"S 45d0'0\" E");
    const wchar_t* quarters[] = {L"E", L"N", L"W", L"S"};
    for (int at = 0; at < 4; ++at) {
        EXPECT_EQ(angleText(at * PI / 2, 5, 4), quarters[at]);
        EXPECT_NEAR(*angleFromText(quarters[at], 5), at * PI / 2, 1e-12);
    }
    EXPECT_NEAR(*angleFromText(L"n45dw", 5), 3 * PI / 4, 1e-12);
    EXPECT_NEAR(*angleFromText(L"S 90 W", 5), PI, 1e-12);
    EXPECT_NEAR(*angleFromText(L"N 90d E", 5), 0, 1e-12);
    EXPECT_NEAR(*angleFromText(L" S 30d15'36\" E ", 5), 3 * PI / 2 + 30.26 / 180 * PI, 1e-12);
    EXPECT_NEAR(*angleFromText(L"-45d", 5), -PI / 4, 1e-12);
    for (const auto* text : {L"N 45d30 E", L"N45d30E", L"N 45d 30' E", L"n 45 d 30 ' 0 \" e", L"44d30'"})
        EXPECT_NEAR(*angleFromText(text, 5), 44.5 / 180 * PI, 1e-12) << text;
    EXPECT_NEAR(*angleFromText(L"N 45d 30' 15\" E", 5), (44.5 - 15.0 / 3600) / 180 * PI, 1e-12);
    for (const auto* text : {L"N 91d E", L"N 90d0'1 E", L"N 45d", L"N 45d30", L"N E", L"NE", L"45d X", L"",
                             L"N 45d E E", L"-N 45d E", L"N -45d E", L"E 45d N", L"N 45d30'15'' E"})
        EXPECT_FALSE(angleFromText(text, 5)) << text;
}

TEST(AngularUnits, ReadWithAndWithoutTheUnitsMark) {
    EXPECT_NEAR(*angleFromText(L"45d30'", 2), 45.5 / 180 * PI, 1e-12);
    EXPECT_NEAR(*angleFromText(L"45D30'36\"", 2), 45.51 / 180 * PI, 1e-12);
    EXPECT_NEAR(*angleFromText(L"45.5", 2), 45.5 / 180 * PI, 1e-12);
    EXPECT_NEAR(*angleFromText(L"50G", 3), PI / 4, 1e-12);
    EXPECT_NEAR(*angleFromText(L"50", 3), PI / 4, 1e-12);
    EXPECT_NEAR(*angleFromText(L"-1.5r", 4), -1.5, 1e-12);
    EXPECT_NEAR(*angleFromText(L"50 g", 3), PI / 4, 1e-12);
    for (const auto* text : {L"-45d30", L"- 45d30", L"-45 d 30 '", L"-45d30'0", L"-45d1800\"", L"-45.5d"})
        EXPECT_NEAR(*angleFromText(text, 2), -45.5 / 180 * PI, 1e-12) << text;
    for (const auto* text : {L"45d30'15", L"45d 30' 15\"", L"45d30'15\"", L"45d 30'15 "})
        EXPECT_NEAR(*angleFromText(text, 2), (45.5 + 15.0 / 3600) / 180 * PI, 1e-12) << text;
    EXPECT_FALSE(std::signbit(*angleFromText(L"-0", 1)));
    for (const auto* text : {L"45r", L"d", L"d30", L"45'", L"45dd", L"45 30", L"45d30 15", L"45d-30",
                             L"45d30'15'", L"45d30\"15", L"45d30\"\"", L"45d''", L"--45", L"45d30'15\"1"})
        EXPECT_FALSE(angleFromText(text, 2)) << text;
}

TEST(Units, WhatIsShownIsReadAgainToTheLastPlace) {
    std::mt19937 random(20);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    for (int round = 0; round < 5000; ++round) {
        const int unit = 1 + static_cast<int>(random() % 5);
        const int precision = static_cast<int>(random() % 9);
        const double value = mantissa(random) * std::pow(10, static_cast<int>(random() % 7));
        // The last place, of each distance and of each angle.
        const double ten = std::pow(10, -precision), two = std::ldexp(1, -precision), degree = PI / 180;
        const double power = std::pow(10, std::floor(std::log10(std::max(std::fabs(value), 1e-300))));
        const double part = precision == 0   ? degree
                            : precision <= 2 ? degree / 60
                                             : degree / 3600 * std::pow(10, -std::max(0, precision - 4));
        const double lengths[] = {ten * power, ten, ten, two, two};
        const double turns[] = {ten * degree, part, ten * PI / 200, ten, part};
        const auto text = distanceText(value, unit, precision);
        const auto back = distanceFromText(*text, unit);
        ASSERT_TRUE(back) << *text;
        EXPECT_NEAR(*back, value, lengths[unit - 1] * (0.5 + 1e-6) + std::fabs(value) * 1e-14) << *text;
        const auto shown = angleText(value, unit, precision);
        const auto angle = angleFromText(*shown, unit);
        ASSERT_TRUE(angle) << *shown;
        const double apart = std::fabs(std::remainder(*angle - value, TURN));
        EXPECT_LE(apart, turns[unit - 1] * (0.5 + 1e-6) + 1e-9) << *shown << " from " << value;
    }
}

// What a box shows when it was left a first time stays at each later visit, and no negative zero is shown.
TEST(Units, AVisitWithoutTypingChangesNothing) {
    std::mt19937 random(21);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    std::vector<double> values = {0.0,  -0.0,   -0.01,      -TURN, TURN, 400 / 200.0 * -PI,
                                  6.27, -1e-17, 11.99999999};
    for (int quarter = -8; quarter <= 8; ++quarter)
        for (int place = 0; place < 12; ++place)
            for (const int side : {-1, 1})
                values.push_back(quarter * PI / 2 + side * 0.5 * std::pow(10, -place));
    for (int more = 0; more < 800; ++more)
        values.push_back(mantissa(random) * std::pow(10, static_cast<int>(random() % 24) - 8));
    for (const double value : values) {
        for (int unit = 1; unit <= 5; ++unit) {
            for (int precision = -1; precision <= 8; ++precision) {
                const auto length = *distanceText(value, unit, precision);
                EXPECT_TRUE(length[0] != L'-' || length.find_first_of(L"123456789") != length.npos) << length;
                EXPECT_EQ(distanceText(*distanceFromText(length, unit), unit, precision), length)
                    << value << " in " << unit << ", " << precision;
                const auto shown = *angleText(value, unit, precision);
                EXPECT_EQ(shown.find(L'-'), shown.npos) << shown;
                const auto read = angleFromText(shown, unit);
                ASSERT_TRUE(read) << shown;
                EXPECT_TRUE(*read >= 0 && *read < TURN) << shown;
                EXPECT_EQ(angleText(*read, unit, precision), shown)
                    << value << " in " << unit << ", " << precision;
            }
        }
    }
}

}  // namespace
}  // namespace units
