#include "src/slides/WexSlideImage.h"

#include <utility>

#include "src/dialog/EventBridge.h"
#include "src/dialog/WexDialog.h"
#include "src/shell/Warning.h"
#include "src/slides/DcSurface.h"

namespace {

constexpr COLORREF BLACK = 0;
constexpr COLORREF WHITE = 0xFFFFFF;

SIZE sizeOf(const RECT& client) { return {client.right, client.bottom}; }

// Puts back what is changed of a device context while it lives.
class SavedDC {
  public:
    explicit SavedDC(HDC dc) : m_dc(dc), m_saved(::SaveDC(dc)) {}
    ~SavedDC() { ::RestoreDC(m_dc, m_saved); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

  private:
    HDC m_dc;
    int m_saved;
};

// In coordinates of its own, which are gone afterwards.
void drawSlide(const CDC& dc, const CSlideObject& slide, const PixelRect& rect, int isotropic) {
    const SavedDC saved(dc);
    DcSurface surface(dc);
    slide.PrepareDC(surface, rect, isotropic, 1);
    slide.SetColors(surface, BLACK, WHITE);
    slide.Draw(surface, 0);
}

}  // namespace

void warnNoSlide(const CString& file, const CString& member) {
    warn(WARN_NOT_FOUND, [&] {
        return quoted(file) +
               (member.IsEmpty() ? CString(L" is no slide") : CString(L" has no slide " + quoted(member)));
    });
}

// The client area to draw on. The focus mark is off meanwhile: it turns the colors under it, and what is
// drawn over a part of it couldn't be turned back.
class WexSlideImage::Drawing : public ClientDC {
  public:
    explicit Drawing(WexSlideImage& tile) : ClientDC(tile.m_hWnd), m_tile(tile) {
        if (m_tile.m_isMarked) m_tile.turnMark(*this);
    }
    ~Drawing() {
        if (m_tile.m_hasFocus) m_tile.turnMark(*this);
    }

  private:
    WexSlideImage& m_tile;
};

WexSlideImage::WexSlideImage()
    : m_brush(CreateSolidBrush(BLACK)), m_textColor(GetSysColor(COLOR_WINDOWTEXT)) {}

const MessageMap& WexSlideImage::messageMap() const {
    static const MessageMap map(CButton::messageMap(),
                                {
                                    onReflectedMessage<WM_DRAWITEM, &WexSlideImage::DrawItem>(),
                                    onReflectedMessage<WM_CTLCOLORBTN, &WexSlideImage::onColor>(),
                                    on<WM_PAINT, &WexSlideImage::onPaint>(),
                                    on<WM_ERASEBKGND, &WexSlideImage::onEraseBackground>(),
                                    on<WM_SETFOCUS, &WexSlideImage::onSetFocus>(),
                                    on<WM_KILLFOCUS, &WexSlideImage::onKillFocus>(),
                                    on<WM_LBUTTONDOWN, &WexSlideImage::onLButtonDown>(),
                                    on<WM_ENABLE, &WexSlideImage::onEnable>(),
                                    // The button's own answers would draw it as a button.
                                    onPlain<WM_LBUTTONDBLCLK, &WexSlideImage::ignore>(),
                                    onPlain<WM_MOUSEMOVE, &WexSlideImage::ignore>(),
                                    onPlain<WM_MOUSELEAVE, &WexSlideImage::ignore>(),
                                    onPlain<BM_SETSTATE, &WexSlideImage::ignore>(),
                                    onPlain<WM_GETDLGCODE, &WexSlideImage::onGetDlgCode>(),
                                    onRaw<BM_SETCHECK, &WexSlideImage::onShownState>(),
                                    onRaw<WM_SETTEXT, &WexSlideImage::onShownState>(),
                                });
    return map;
}

// All color messages of children in one: they stand in a row.
LRESULT WexSlideImage::WindowProc(UINT message, WPARAM w, LPARAM l) {
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC)
        return onColorOfChild(reinterpret_cast<HDC>(w));
    return CButton::WindowProc(message, w, l);
}

void WexSlideImage::attach(WexDialog& dialog, HWND control) {
    FromHandle(control)->ModifyStyleEx(SLIDE_EX_STYLE, 0);
    TileControl::attach(dialog, control);
}

void WexSlideImage::discovered(WexDialog&, CCtrlInfo& tile) { m_tile = &tile; }

void WexSlideImage::applyRecord(CCtrlInfo& tile) {
    TileControl::applyRecord(tile);
    m_tile = &tile;
    if (!tile.m_slideFile.IsEmpty() && !ShowSlide(tile.m_slideFile, tile.m_auxText, tile.m_slideRect))
        warnNoSlide(tile.m_slideFile, tile.m_auxText);
}

// --- drawing

void WexSlideImage::clear(HDC dc) const {
    const RECT client = GetClientRect();
    ::FillRect(dc, &client, m_brush.get());
}

void WexSlideImage::clearSlides() {
    m_library.Load(L"");
    m_slide.Load(L"");
}

void WexSlideImage::reset() {
    clearSlides();
    const Drawing dc(*this);
    clear(dc);
}

void WexSlideImage::drawVector(POINT from, POINT to, COLORREF color) {
    const Drawing dc(*this);
    const UniquePen pen(CreatePen(PS_SOLID, 1, color));
    const SelectedObject selected(dc, pen.get());
    MoveToEx(dc, from.x, from.y, nullptr);
    LineTo(dc, to.x, to.y);
    // A line leaves out its last pixel, and one without a length the only one.
    SetPixelV(dc, from.x, from.y, color);
    SetPixelV(dc, to.x, to.y, color);
}

void WexSlideImage::fillRect(const RECT& rect, COLORREF color) {
    const Drawing dc(*this);
    SetBkColor(dc, color);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, L"", 0, nullptr);
}

bool WexSlideImage::ShowSlide(const CString& file, const CString& member, const PixelRect& rect) {
    clearSlides();
    const Drawing dc(*this);
    clear(dc);
    m_slide.Load(L"");
    m_slideFile = file;
    m_slideName = member;
    m_slideRect = rect;
    if (m_library.Load(m_slideFile) != 1) return false;
    const CSlideObject* slide = m_library.Find(m_slideName);
    if (!slide) return false;
    if (m_slideRect.width() <= 0 || m_slideRect.height() <= 0) m_slideRect = pixelRect(GetClientRect());
    drawSlide(dc, *slide, m_slideRect, 0);
    return true;
}

void WexSlideImage::DrawSlideObject(const CSlideObject& slide) {
    const Drawing dc(*this);
    clear(dc);
    const SlideSize extents = slide.GetExtents();
    if (extents.cx == 0 || extents.cy == 0) return;
    drawSlide(dc, slide, pixelRect(GetClientRect()), 1);
}

// Visibility is asked before each step: where the dialog has been hidden meanwhile, the screen shows
// something else.
void WexSlideImage::takeSnapshot() {
    if (!isParentVisible()) return;
    m_snapshot.reset();
    const SIZE size = sizeOf(GetClientRect());
    if (size.cx <= 0 || size.cy <= 0) return;
    // Without the focus mark, which comes and goes.
    const Drawing dc(*this);
    const CompatibleDC memory(dc);
    if (!isParentVisible()) return;
    UniqueBitmap bitmap(CreateCompatibleBitmap(dc, size.cx, size.cy));
    const SelectedObject selected(memory, bitmap.get());
    if (!isParentVisible()) return;
    BitBlt(memory, 0, 0, size.cx, size.cy, dc, 0, 0, SRCCOPY);
    m_snapshot = std::move(bitmap);
}

bool WexSlideImage::LoadPicture(const CString& path, bool fit) {
    m_fit = fit;
    // Before the next one is read: two large ones would have to be held at once.
    m_picture.reset();
    m_picture = loadPicture(path.c_str());
    // An older snapshot would hide it.
    m_snapshot.reset();
    redraw();
    return static_cast<bool>(m_picture);
}

void WexSlideImage::redraw() const {
    RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

// --- painting

void WexSlideImage::onPaint() {
    if (m_tile) m_slideFile = m_tile->m_slideFile;
    // A part of the focus mark couldn't be drawn anew.
    Invalidate(false);
    const PaintDC dc(m_hWnd);
    m_isMarked = false;
    if (m_snapshot) {
        if (!isParentVisible()) return;
        paintSnapshot(dc);
    } else if (m_picture) {
        paintPicture(dc);
    } else if (m_slideFile.IsEmpty()) {
        clear(dc);
    } else {
        ShowSlide(m_slideFile, m_slideName, m_slideRect);
        takeSnapshot();
    }
    if (m_hasFocus && !m_isMarked) turnMark(dc);
}

// Black where the tile has grown since.
void WexSlideImage::paintSnapshot(HDC dc) const {
    BITMAP bitmap{};
    GetObjectW(m_snapshot.get(), sizeof bitmap, &bitmap);
    const CompatibleDC memory(dc);
    const SelectedObject selected(memory, m_snapshot.get());
    BitBlt(dc, 0, 0, bitmap.bmWidth, bitmap.bmHeight, memory, 0, 0, SRCCOPY);
    ExcludeClipRect(dc, 0, 0, bitmap.bmWidth, bitmap.bmHeight);
    clear(dc);
    SelectClipRgn(dc, nullptr);
}

// On black, shown in one go.
void WexSlideImage::paintPicture(HDC dc) const {
    const SIZE size = sizeOf(GetClientRect());
    if (size.cx <= 0 || size.cy <= 0) return;
    const MemoryDC memory(dc, size.cx, size.cy);
    clear(memory);
    drawPicture(*m_picture, memory, size, m_fit);
    memory.copyTo(dc, 0, 0);
}

void WexSlideImage::turnMark(HDC dc) {
    const RECT client = GetClientRect();
    const RECT mark = {2, 2, client.right - 2, client.bottom - 2};
    DrawFocusRect(dc, &mark);
    m_isMarked = !m_isMarked;
}

void WexSlideImage::refreshMark() { const Drawing brings(*this); }

// Painting covers all.
bool WexSlideImage::onEraseBackground(HDC) { return true; }

void WexSlideImage::DrawItem(DRAWITEMSTRUCT*) { redraw(); }

// --- events

void WexSlideImage::onSetFocus(CWnd*) {
    m_hasFocus = true;
    refreshMark();
}

void WexSlideImage::onKillFocus(CWnd*) {
    m_hasFocus = false;
    refreshMark();
}

void WexSlideImage::onLButtonDown(UINT, POINT) { publish(*this, L"", REASON_PRESSED, m_action); }

void WexSlideImage::onEnable(bool) { redraw(); }

// --- messages that the platform has for buttons

LRESULT WexSlideImage::onColor(HDC dc, CWnd*) {
    if (!IsWindowEnabled(m_hWnd)) return 0;
    SetBkColor(dc, m_backColor);
    SetTextColor(dc, m_textColor);
    ::SelectObject(dc, m_brush.get());
    return reinterpret_cast<LRESULT>(m_brush.get());
}

// kept: passed on as if it were the tile's own, and of the first kind
LRESULT WexSlideImage::onColorOfChild(HDC dc) {
    SetBkColor(dc, m_backColor);
    return DefWindowProc(WM_CTLCOLORMSGBOX, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(m_hWnd));
}

// No push button: the dialog would make it the default one while it has the focus, and Enter would reach
// nobody.
LRESULT WexSlideImage::onGetDlgCode() { return DLGC_BUTTON | DLGC_STATIC; }

// The button draws its new state at once; the tile's own look then has to come back.
LRESULT WexSlideImage::onShownState(WPARAM, LPARAM) {
    const LRESULT result = Default();
    Invalidate(false);
    return result;
}
