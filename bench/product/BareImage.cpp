#include "bench/product/BareImage.h"

#include <ole2.h>
#include <olectl.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "bench/dialog/Measure.h"

namespace {

constexpr COLORREF COLOR = 0x0000FF;

SIZE clientSize(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

// Null where it can't be read.
IStream* streamOf(const wchar_t* path, DWORD& size) {
    const HANDLE file = CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    size = GetFileSize(file, nullptr);
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    ReadFile(file, GlobalLock(block), size, &size, nullptr);
    GlobalUnlock(block);
    CloseHandle(file);
    IStream* stream = nullptr;
    CreateStreamOnHGlobal(block, TRUE, &stream);
    return stream;
}

void draw(IPicture& picture, HWND window) {
    const SIZE size = clientSize(window);
    const RECT bounds = {0, 0, size.cx, size.cy};
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    picture.get_Width(&width);
    picture.get_Height(&height);
    const HDC dc = GetDC(window);
    SetStretchBltMode(dc, HALFTONE);
    picture.Render(dc, 0, 0, size.cx, size.cy, 0, height, width, -height, &bounds);
    ReleaseDC(window, dc);
}

}  // namespace

double bareVectors(HWND window, int count) {
    return timeOf([=] {
        for (int i = 0; i < count; ++i) {
            const int x = i % 100, y = i / 100;
            const HDC dc = GetDC(window);
            const HPEN pen = CreatePen(PS_SOLID, 1, COLOR);
            const HGDIOBJ former = SelectObject(dc, pen);
            MoveToEx(dc, x, y, nullptr);
            LineTo(dc, x + 20, y + 10);
            SetPixelV(dc, x, y, COLOR);
            SetPixelV(dc, x + 20, y + 10, COLOR);
            SelectObject(dc, former);
            DeleteObject(pen);
            ReleaseDC(window, dc);
        }
        GdiFlush();
    });
}

double bareRepaint(HWND window) {
    const SIZE size = clientSize(window);
    const HDC dc = GetDC(window);
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, size.cx, size.cy);
    const double spent = timeOf([&] {
        InvalidateRect(window, nullptr, FALSE);
        PAINTSTRUCT paint;
        const HDC painted = BeginPaint(window, &paint);
        const HDC memory = CreateCompatibleDC(painted);
        const HGDIOBJ former = SelectObject(memory, bitmap);
        BitBlt(painted, 0, 0, size.cx, size.cy, memory, 0, 0, SRCCOPY);
        SelectObject(memory, former);
        DeleteDC(memory);
        EndPaint(window, &paint);
        GdiFlush();
    });
    DeleteObject(bitmap);
    ReleaseDC(window, dc);
    return spent;
}

double writeBmp(const wchar_t* path, int width, int height) {
    return timeOf([=] {
        const DWORD rowBytes = static_cast<DWORD>((width * 3 + 3) / 4 * 4);
        BITMAPFILEHEADER header{};
        header.bfType = 0x4D42;
        header.bfOffBits = sizeof header + sizeof(BITMAPINFOHEADER);
        header.bfSize = header.bfOffBits + rowBytes * height;
        BITMAPINFOHEADER info{sizeof info, width, height, 1, 24};
        std::ofstream file(std::filesystem::path(path), std::ios::binary);
        file.write(reinterpret_cast<const char*>(&header), sizeof header);
        file.write(reinterpret_cast<const char*>(&info), sizeof info);
        std::vector<char> row(rowBytes);
        for (int y = 0; y < height; ++y) {
            for (DWORD at = 0; at < rowBytes; ++at) row[at] = static_cast<char>((at + y) / 16);
            file.write(row.data(), static_cast<std::streamsize>(row.size()));
        }
    });
}

double barePicture(HWND window, const wchar_t* path) {
    return timeOf([=] {
        DWORD size = 0;
        IStream* stream = streamOf(path, size);
        if (!stream) return;
        IPicture* picture = nullptr;
        OleLoadPicture(stream, static_cast<LONG>(size), FALSE, IID_IPicture,
                       reinterpret_cast<void**>(&picture));
        stream->Release();
        if (!picture) return;
        draw(*picture, window);
        GdiFlush();
        picture->Release();
    });
}
