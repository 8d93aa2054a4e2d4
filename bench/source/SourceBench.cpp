// The first paint of a list control that shows a million rows of a source, beside the same by hand.
//
//     source_bench [REPETITIONS]
#include <windows.h>

#include <commctrl.h>

#include "bench/dialog/Measure.h"
#include "src/dialog/WexDialog.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

constexpr int MILLION = 1'000'000;
constexpr int TABLE = 110;
constexpr int DIALOG_OF_ROWS = 1898;

CString fieldText(int row, int field) { return std::to_wstring(row) + L"." + std::to_wstring(field); }

class Rows : public RowSource {
  public:
    int rowCount() override { return MILLION; }
    CString field(int row, int field) override { return fieldText(row, field); }
    int find(const CString&, bool, int, int) override { return -1; }
};

INT_PTR CALLBACK bareProcedure(HWND, UINT message, WPARAM, LPARAM l) {
    if (message != WM_NOTIFY || reinterpret_cast<const NMHDR*>(l)->code != LVN_GETDISPINFOW)
        return message == WM_INITDIALOG;
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(l)->item;
    if (item.mask & LVIF_TEXT)
        lstrcpynW(item.pszText, fieldText(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
    return TRUE;
}

HWND openBare() {
    const HWND dialog = CreateDialogW(nullptr, MAKEINTRESOURCEW(DIALOG_OF_ROWS), nullptr, &bareProcedure);
    const HWND list = GetDlgItem(dialog, TABLE);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    for (const wchar_t* title : {L"First", L"Second", L"Third"}) {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.cx = 60;
        column.pszText = const_cast<wchar_t*>(title);
        SendMessageW(list, LVM_INSERTCOLUMNW, 3, reinterpret_cast<LPARAM>(&column));
    }
    SetWindowPos(dialog, nullptr, GetSystemMetrics(SM_CXSCREEN) / 2, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ShowWindow(dialog, SW_SHOW);
    return list;
}

void empty(HWND list) {
    SendMessageW(list, LVM_SETITEMCOUNT, 0, 0);
    UpdateWindow(list);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    const int repetitions = count > 1 ? _wtoi(arguments[1]) : 30;
    const HMODULE own = GetModuleHandleW(nullptr);
    WexDialog dialog({DIALOG_OF_ROWS, own, own}, nullptr);
    dialog.tileForId(TABLE)->m_auxText = L"x\tFirst\tSecond\tThird";
    if (!dialog.Create()) return 2;
    releaseRedraw();
    dialog.ShowWindow(SW_SHOW);
    auto& ours = dynamic_cast<WexListCtrl&>(*dialog.GetDlgItem(TABLE));
    const HWND bare = openBare();
    Rows rows;
    Versus times;
    for (int i = 0; i < repetitions; ++i) {
        empty(ours.m_hWnd);
        times.ours.add(timeOf([&] {
            ours.bindTo(rows);
            UpdateWindow(ours.m_hWnd);
        }));
        empty(bare);
        times.bare.add(timeOf([&] {
            SendMessageW(bare, LVM_SETITEMCOUNT, MILLION, 0);
            UpdateWindow(bare);
        }));
    }
    times.print("million_rows_of_a_source_painted");
    return 0;
}
