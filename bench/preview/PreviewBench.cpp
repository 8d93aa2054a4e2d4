// The drawing preview: a drawing file read, one of its blocks framed, and its first and later paints.
//
//     preview_bench [REPETITIONS]
#include <windows.h>

#include <filesystem>
#include <fstream>

#include "bench/dialog/Measure.h"
#include "src/preview/CGsPreviewCtrl.h"

namespace {

constexpr int ENTITIES = 100'000, COLUMNS = 400;
constexpr RECT PLACE = {0, 0, 580, 450};

// Short lines in rows, in the model space and in a block.
void writeDrawing(const std::filesystem::path& path) {
    std::ofstream file(path);
    file << "wexdrawing 1\n";
    for (const char* block : {"*Model_Space", "Wires"}) {
        file << "block \"" << block << "\" 0 0 0\n";
        for (int at = 0; at < ENTITIES / 2; ++at) {
            const int x = at % COLUMNS * 10, y = at / COLUMNS * 10;
            file << "LINE 0 256 continuous 1 " << x << ' ' << y << " 0 " << x + 8.25 << ' ' << y + 3.5
                 << " 0\n";
        }
    }
    file << "end-of-drawing\n";
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    const int repetitions = count > 1 ? _wtoi(arguments[1]) : 7;
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "preview_bench.wdr";
    writeDrawing(file);
    CWnd parent;
    parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, PLACE, nullptr, 0);
    CGsPreviewCtrl preview;
    preview.Create(PLACE, parent.m_hWnd, 1);
    preview.ShowWindow(SW_SHOW);
    const auto paint = [&] {
        RedrawWindow(preview.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        GdiFlush();
    };
    Times reading, framing, first, later;
    for (int at = 0; at < repetitions; ++at) {
        reading.add(timeOf([&] { preview.loadDrawingByPath(file.wstring()); }));
        framing.add(timeOf([&] { preview.showBlock(L"Wires"); }));
        first.add(timeOf(paint));
        later.add(timeOf(paint));
    }
    reading.print("preview.read_100000_entities");
    framing.print("preview.frame_block_of_50000");
    first.print("preview.first_paint_of_50000");
    later.print("preview.paint_of_50000");
    preview.DestroyWindow();
    parent.DestroyWindow();
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    return 0;
}
