#include "src/report/WexReportTab.h"

#include <algorithm>
#include <optional>

#include "src/platform/mfc/CWinApp.h"
#include "src/report/PdfJob.h"
#include "src/report/PrinterJob.h"
#include "src/report/ReportTabLayout.h"
#include "src/shell/Module.h"
#include "src/shell/TileMenu.h"

IMPLEMENT_DYNAMIC(WexReportTab, CTabCtrl)

namespace {

constexpr UINT SCROLL_BAR_ID = 102, DRAWING_ID = 103;
constexpr TextId TAB_TEXTS[] = {TEXT_REPORT_TAB, TEXT_DRAWING_TAB, TEXT_EMPTY_TAB};

enum Page { PREVIEW_PAGE, DRAWING_PAGE };
enum Button { PRINT_BUTTON = 3, PDF_BUTTON, TOP_BUTTON, BOTTOM_BUTTON, HELP_BUTTON };

void place(const CWnd& window, const PixelRect& rect, HWND behind, UINT flags) {
    SetWindowPos(window.m_hWnd, behind, rect.left, rect.top, rect.width(), rect.height(),
                 flags | SWP_NOACTIVATE);
}

void redraw(HWND window) { RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE); }

std::optional<UINT> requestOfKey(UINT key) {
    const bool control = GetKeyState(VK_CONTROL) < 0;
    switch (key) {
        case VK_UP:
            return SB_LINEUP;
        case VK_DOWN:
            return SB_LINEDOWN;
        case VK_PRIOR:
            return SB_PAGEUP;
        case VK_NEXT:
            return SB_PAGEDOWN;
        case VK_HOME:
            return control ? std::optional<UINT>(SB_TOP) : std::nullopt;
        case VK_END:
            return control ? std::optional<UINT>(SB_BOTTOM) : std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace

const MessageMap& WexReportTab::messageMap() const {
    static const MessageMap map(
        CTabCtrl::messageMap(),
        {
            onReflectedNotify<static_cast<UINT>(TCN_SELCHANGE), &WexReportTab::onSelectionChanged>(),
            on<WM_SIZE, &WexReportTab::onSize>(),
            on<WM_VSCROLL, &WexReportTab::onVScroll>(),
            on<WM_MOUSEWHEEL, &WexReportTab::onMouseWheel>(),
            on<WM_KEYDOWN, &WexReportTab::onKeyDown>(),
            onRaw<WM_CONTEXTMENU, &WexReportTab::onContextMenu>(),
            on<WM_DESTROY, &WexReportTab::onDestroy>(),
        });
    return map;
}

void WexReportTab::Initialize() {
    for (size_t at = 0; at < std::size(TAB_TEXTS); ++at) {
        CString text = resourceText(TAB_TEXTS[at]);
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        SendMessage(TCM_INSERTITEMW, at, reinterpret_cast<LPARAM>(&item));
    }
    // The tab control's own painting would show before that of its children.
    ModifyStyle(0, WS_CLIPCHILDREN);
    const RECT window = GetWindowRect();
    const RECT rect{4, captionsBottom() + 4, window.right - window.left - 8, window.bottom - window.top - 4};
    m_preview.Create(rect, m_hWnd);
    m_scrollBar.CreateEx(0, L"ScrollBar", L"", WS_CHILD | WS_VISIBLE | SBS_VERT, RECT{}, m_hWnd,
                         SCROLL_BAR_ID);
    m_drawing.Create(rect, m_hWnd, DRAWING_ID);
    m_preview.m_scrollBar = &m_scrollBar;
    fitButtonTexts();
    // The dialog may keep its size, and then nothing else would place the scroll bar.
    const RECT client = GetClientRect();
    layOut(client.right, client.bottom);
}

int WexReportTab::captionsBottom() const {
    RECT item{};
    SendMessage(TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
    return item.bottom;
}

void WexReportTab::onSize(UINT /*type*/, int width, int height) {
    Default();
    layOut(width, height);
}

void WexReportTab::layOut(int width, int height) {
    if (!m_drawing.isLive()) return;
    const ReportTabLayout places(width, height, captionsBottom());
    place(m_preview, places.preview, nullptr, SWP_NOZORDER);
    place(m_drawing, places.drawing, nullptr, SWP_NOZORDER);
    place(m_scrollBar, places.scrollBar, HWND_TOP, 0);
    layOutButtons(width, height);
}

// The dialog may be moving this control at this moment, so its buttons are not moved by a batch.
void WexReportTab::layOutButtons(int width, int height) const {
    const HWND dialog = ::GetParent(m_hWnd);
    int count = 0;
    for (const int id : REPORT_BUTTONS) {
        const CWnd* button = CWnd::FromHandle(::GetDlgItem(dialog, id));
        if (!button) continue;
        place(*button, reportButton(count++, rectInParent().left, width, height), nullptr, SWP_NOZORDER);
        redraw(button->m_hWnd);
    }
    redraw(dialog);
}

// Their size is the same at every display scale, and so the size of their texts is.
void WexReportTab::fitButtonTexts() {
    const ClientDC dc(m_hWnd);
    const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
    LOGFONTW font{};
    if (dpi <= USER_DEFAULT_SCREEN_DPI || !GetObjectW(GetFont(), sizeof font, &font)) return;
    font.lfHeight = MulDiv(font.lfHeight, USER_DEFAULT_SCREEN_DPI, dpi);
    m_buttonFont.reset(CreateFontIndirectW(&font));
    for (const int id : REPORT_BUTTONS)
        if (const CWnd* button = CWnd::FromHandle(::GetDlgItem(::GetParent(m_hWnd), id)))
            button->SetFont(m_buttonFont.get());
}

// --- pages

LRESULT WexReportTab::onSelectionChanged(NMHDR* /*header*/) {
    showPage();
    return 0;
}

void WexReportTab::showPage() {
    const LRESULT page = SendMessage(TCM_GETCURSEL);
    m_preview.ShowWindow(page == PREVIEW_PAGE ? SW_SHOW : SW_HIDE);
    m_scrollBar.ShowWindow(page == PREVIEW_PAGE ? SW_SHOW : SW_HIDE);
    m_drawing.ShowWindow(page == DRAWING_PAGE ? SW_SHOW : SW_HIDE);
    // Framed once in a dialog: later turns of the page find the view as it was left.
    if (page == DRAWING_PAGE && !m_drawing.hasView()) m_drawing.showSampleTable();
}

bool WexReportTab::turnPage(int step, HWND focus) {
    if (!isLive() || (focus && focus != m_hWnd)) return false;
    constexpr LRESULT COUNT = std::size(TAB_TEXTS);
    SendMessage(TCM_SETCURSEL, (SendMessage(TCM_GETCURSEL) + step + COUNT) % COUNT);
    showPage();
    return true;
}

bool WexReportTab::showsPreview() const { return IsWindowVisible(m_preview.m_hWnd) != FALSE; }

// --- scrolling

void WexReportTab::onVScroll(UINT request, UINT thumb) {
    scroll(request, static_cast<int>(thumb));
    Default();
}

void WexReportTab::scroll(UINT request, int thumb) {
    m_scrollBar.SetScrollPos(
        scrolledTo(request, m_scrollBar.GetScrollPos(), m_scrollBar.GetScrollLimit(), thumb));
    RedrawWindow(m_preview.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

// kept: the wheel moves the sheet from above the scroll bar, but not from above the sheet itself.
void WexReportTab::onMouseWheel(UINT /*keys*/, int delta, POINT at) {
    const RECT bar = m_scrollBar.GetWindowRect();
    if (!showsPreview() || !PtInRect(&bar, at)) {
        Default();
        return;
    }
    for (m_wheel += delta; m_wheel >= WHEEL_DELTA; m_wheel -= WHEEL_DELTA) scroll(SB_LINEUP);
    for (; m_wheel <= -WHEEL_DELTA; m_wheel += WHEEL_DELTA) scroll(SB_LINEDOWN);
}

void WexReportTab::onKeyDown(UINT key, UINT /*flags*/) {
    const auto request = showsPreview() ? requestOfKey(key) : std::nullopt;
    if (request)
        scroll(*request);
    else
        Default();
}

// --- buttons

void WexReportTab::pressed(int id) {
    switch (id) {
        case PRINT_BUTTON: {
            PrinterJob job;
            m_preview.Print(job);
            break;
        }
        case PDF_BUTTON:
            saveAsPdf();
            break;
        case TOP_BUTTON:
            scroll(SB_TOP);
            break;
        case BOTTOM_BUTTON:
            scroll(SB_BOTTOM);
            break;
        case HELP_BUTTON:
            MessageBoxW(::GetParent(m_hWnd), resourceText(TEXT_REPORT_HELP).c_str(),
                        resourceText(TEXT_REPORT_HELP_TITLE).c_str(), MB_OK | MB_ICONINFORMATION);
            break;
        default:
            break;
    }
}

// That of the page that shows; the sheet's by the right button, too.
LRESULT WexReportTab::onContextMenu(WPARAM, LPARAM l) {
    if (isFromKeyboard(l) && IsWindowVisible(m_drawing.m_hWnd)) m_drawing.showMenu();
    const RECT sheet = m_preview.GetWindowRect();
    const POINT at = {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))};
    if (!showsPreview() || (!isFromKeyboard(l) && !PtInRect(&sheet, at))) return 0;
    TileMenu menu;
    menu.add(PRINT_BUTTON, MenuTextId::print, MenuIcon::print);
    menu.add(PDF_BUTTON, MenuTextId::savePdf, MenuIcon::save);
    // By the keyboard at the sheet's corner; below it are the buttons.
    const RECT place = m_preview.rectInParent();
    if (const UINT command = menu.choose(*this, l, {place.left, place.top, place.left, place.top}))
        pressed(static_cast<int>(command));
    return 0;
}

void WexReportTab::saveAsPdf() {
    PdfJob job;
    if (!m_preview.Print(job) || job.finish()) return;
    AfxMessageBox((resourceText(TEXT_PDF_NOT_SAVED) + L"\n" + job.path()).c_str());
}

void WexReportTab::onDestroy() {
    m_preview.DestroyWindow();
    m_drawing.DestroyWindow();
    Default();
}
