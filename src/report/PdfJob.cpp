#include "src/report/PdfJob.h"

#include <commdlg.h>
#include <winspool.h>

#include <iterator>
#include <memory>
#include <vector>

#include "src/platform/mfc/RedrawHold.h"
#include "src/platform/mfc/SystemFunction.h"
#include "src/platform/mfc/ThemeContext.h"

namespace {

// Of Wine alone: runs a program of the system below it, waits for its end, and gives its exit status.
using RunBelow = LONG CDECL(char* const arguments[], int wait);
// The path of a file as that system has it, in memory of the process heap.
using PathBelow = char* CDECL(const wchar_t* path);

RunBelow* runBelow() { return systemFunction<RunBelow>(L"ntdll.dll", "__wine_unix_spawnvp"); }

struct FreeHeap {
    void operator()(char* memory) const { HeapFree(GetProcessHeap(), 0, memory); }
};

bool convert(const std::wstring& from, const std::wstring& to) {
    const auto below = systemFunction<PathBelow>(L"kernel32.dll", "wine_get_unix_file_name");
    if (!below) return false;
    const std::unique_ptr<char, FreeHeap> source(below(from.c_str())), target(below(to.c_str()));
    if (!source || !target) return false;
    char program[] = "ps2pdf";
    char* const arguments[] = {program, source.get(), target.get(), nullptr};
    return runBelow()(arguments, TRUE) == 0;
}

std::vector<std::byte> listPrinters(DWORD& count) {
    std::vector<std::byte> list;
    const auto enumerate = systemFunction<decltype(EnumPrintersW)>(L"winspool.drv", "EnumPrintersW");
    if (!enumerate) return list;
    const DWORD kinds = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    DWORD size = 0;
    enumerate(kinds, nullptr, 2, nullptr, 0, &size, &count);
    list.resize(size);
    enumerate(kinds, nullptr, 2, reinterpret_cast<BYTE*>(list.data()), size, &size, &count);
    return list;
}

// The first printer that writes what is needed: PDF files, or on Wine PostScript, as all do there.
std::wstring findPrinter() {
    DWORD count = 0;
    const std::vector<std::byte> list = listPrinters(count);
    const auto* printers = reinterpret_cast<const PRINTER_INFO_2W*>(list.data());
    const bool any = runBelow() != nullptr;
    for (DWORD i = 0; i < count; ++i)
        if (any || std::wstring_view(printers[i].pDriverName).find(L"PDF") != std::wstring_view::npos)
            return printers[i].pPrinterName;
    return {};
}

}  // namespace

bool PdfJob::choose(HWND owner) {
    const auto ask = systemFunction<decltype(GetSaveFileNameW)>(L"comdlg32.dll", "GetSaveFileNameW");
    if (!ask) return false;
    releaseRedraw();
    const ThemeContext themed;
    wchar_t path[1024] = L"Report.pdf";
    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = L"PDF (*.pdf)\0*.pdf\0";
    request.lpstrFile = path;
    request.nMaxFile = static_cast<DWORD>(std::size(path));
    request.lpstrDefExt = L"pdf";
    request.Flags =
        OFN_EXPLORER | OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!ask(&request)) return false;
    m_path = path;
    return true;
}

HDC PdfJob::createDC() {
    const std::wstring printer = findPrinter();
    return printer.empty() ? nullptr : CreateDCW(nullptr, printer.c_str(), nullptr, nullptr);
}

std::wstring PdfJob::printed() const { return runBelow() ? m_path + L".ps" : m_path; }

int PdfJob::startDoc(HDC dc, const wchar_t* name) { return startDocInto(dc, name, printed().c_str()); }

// Windows goes on writing behind the document's end, so nothing can be told of its file.
bool PdfJob::finish() const {
    if (!runBelow()) return true;
    const bool converted = convert(printed(), m_path);
    DeleteFileW(printed().c_str());
    return converted;
}
