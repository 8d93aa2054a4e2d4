// A slide of 100,000 vectors: decoded alone, and drawn beside the same lines drawn from an array.
#include <windows.h>

#include <cmath>
#include <cstdlib>
#include <random>

#include "bench/dialog/Measure.h"
#include "src/slides/DcSurface.h"
#include "src/slides/SlideRecordReader.h"
#include "tests/support/slides/MadeSlide.h"

namespace {

constexpr int VECTORS = 100000, WIDTH = 640, HEIGHT = 480;
constexpr SlideForm FORM = {2, true};

struct Line {
    int x1, y1, x2, y2;
};

// Lines of up to 20 units, as most of a drawing's are.
std::vector<Line> randomLines() {
    std::mt19937 random(1);
    std::uniform_int_distribution<int> x(20, WIDTH - 21), y(20, HEIGHT - 21), d(-20, 20);
    std::vector<Line> lines(VECTORS);
    for (Line& line : lines) {
        line = {x(random), y(random), 0, 0};
        line.x2 = line.x1 + d(random);
        line.y2 = line.y1 + d(random);
    }
    return lines;
}

std::vector<uint8_t> vectorsOf(const std::vector<Line>& lines) {
    MadeSlide slide(FORM, WIDTH, HEIGHT);
    for (const Line& line : lines) slide.vector(line.x1, line.y1, line.x2, line.y2);
    return slide.end().bytes();
}

// Records of all kinds in random order.
std::vector<uint8_t> mixedRecords() {
    std::mt19937 random(2);
    MadeSlide slide(FORM, WIDTH, HEIGHT);
    for (int i = 0; i < VECTORS; ++i) switch (random() % 8) {
            case 0:
                slide.color(random() % 256);
                break;
            case 1:
                slide.fill({{1, 2}, {30, 4}, {5, 60}, {7, 8}});
                break;
            case 2:
                slide.endpoint(random() % 20, 1);
                break;
            case 3:
            case 4:
                slide.offsetVector(1, 2, random() % 20, 4);
                break;
            default:
                slide.vector(random() % 600, 2, 3, random() % 400);
        }
    return slide.end().bytes();
}

volatile unsigned g_seen;

void decode(const std::vector<uint8_t>& image) {
    SlideRecordReader records(image, FORM.level, FORM.littleEndian);
    unsigned seen = 0;
    for (SlideRecord record; records.next(record);)
        seen += record.kind == SlideRecord::Kind::Vector ? record.x1 + record.y2 : 1u;
    g_seen = seen;
}

void measureDecoding(const char* key, const std::vector<uint8_t>& image, int repetitions) {
    Times times;
    for (int i = 0; i < repetitions; ++i) times.add(timeOf([&] { decode(image); }));
    times.print(key);
    std::printf("%s  %.3f ns a byte\n", key, times.median() * 1e6 / static_cast<double>(image.size()));
}

void drawBare(HDC dc, const std::vector<Line>& lines) {
    for (const Line& line : lines) {
        MoveToEx(dc, line.x2, line.y2, nullptr);
        LineTo(dc, line.x1, line.y1);
    }
}

// The slide and the same by the bare platform.
template <typename DrawBare>
Versus drawInTurns(const OpenSlide& slide, DcSurface& surface, int repetitions, DrawBare drawBare) {
    Versus times;
    for (int i = 0; i < repetitions; ++i) {
        times.ours.add(timeOf([&] {
            slide.Draw(surface, 0);
            GdiFlush();
        }));
        times.bare.add(timeOf([&] {
            drawBare();
            GdiFlush();
        }));
    }
    return times;
}

// A fill of 1,000 corners on a circle, which a drawing draws a hundred times over.
void measureFill(int repetitions) {
    constexpr int CORNERS = 1000, TIMES = 100;
    std::vector<std::pair<int, int>> corners;
    for (int i = 0; i < CORNERS; ++i)
        corners.emplace_back(320 + 200 * std::cos(i * 6.2832 / CORNERS),
                             240 + 200 * std::sin(i * 6.2832 / CORNERS));
    MadeSlide made(FORM, WIDTH, HEIGHT);
    for (int i = 0; i < TIMES; ++i) made.fill(corners);
    const OpenSlide slide(made.end());

    const ClientDC screen(nullptr);
    const MemoryDC memory(screen, WIDTH, HEIGHT);
    DcSurface surface(memory);
    slide.PrepareDC(surface, {0, 0, WIDTH, HEIGHT}, 0, 0);
    std::vector<POINT> points;
    for (const auto& [x, y] : corners) points.push_back({x, y});
    const Versus times = drawInTurns(slide, surface, repetitions, [&] {
        for (int time = 0; time < TIMES; ++time) Polygon(memory, points.data(), CORNERS);
    });
    times.print("slide_100_fills_of_1000_corners");
}

void measureDrawing(const OpenSlide& slide, const std::vector<Line>& lines, int repetitions) {
    const ClientDC screen(nullptr);
    const MemoryDC memory(screen, WIDTH, HEIGHT);
    DcSurface surface(memory);
    slide.PrepareDC(surface, {0, 0, WIDTH, HEIGHT}, 0, 0);
    const SelectedObject pen(memory, GetStockObject(WHITE_PEN));
    const Versus times = drawInTurns(slide, surface, repetitions, [&] { drawBare(memory, lines); });
    times.print("slide_100000_vectors_drawn");
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const int repetitions = argc > 1 ? _wtoi(argv[1]) : 15;
    const auto lines = randomLines();
    const auto vectors = vectorsOf(lines);
    measureDecoding("slide_100000_vectors_decoded", vectors, repetitions);
    measureDecoding("slide_mixed_records_decoded", mixedRecords(), repetitions);
    measureDrawing(OpenSlide(vectors), lines, repetitions);
    measureFill(repetitions);
    return 0;
}
