#include "host/runner/MainFrame.h"

#include <commctrl.h>

#include <algorithm>
#include <initializer_list>

#include "host/drive/IdleWatch.h"
#include "host/services/DisplayScale.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

constexpr wchar_t CLASS_NAME[] = L"WexHostFrame";
constexpr wchar_t LABEL[] = L"Command:";
constexpr wchar_t LABEL_CONTINUED[] = L"more:";

// Pixels at 96 dots per inch.
constexpr SIZE FRAME_SIZE = {960, 640};
constexpr int FONT_HEIGHT = 15;
constexpr int MARGIN = 6;
constexpr int LABEL_WIDTH = 76;
constexpr int COMMAND_LINE_HEIGHT = 22;
constexpr int OUTPUT_HEIGHT = 150;

// The output forgets its older half when it has grown to this many characters.
constexpr int MOST_OUTPUT_CHARS = 200'000;

constexpr COLORREF PAPER = RGB(250, 250, 248);

std::wstring withCarriageReturns(std::wstring_view text) {
    std::wstring lines;
    for (const wchar_t c : text) {
        if (c == L'\n' && (lines.empty() || lines.back() != L'\r')) lines += L'\r';
        lines += c;
    }
    return lines;
}

void registerFrameClass(WNDPROC procedure) {
    WNDCLASSEXW frame = {sizeof frame};
    frame.lpfnWndProc = procedure;
    frame.hInstance = GetModuleHandleW(nullptr);
    frame.hCursor = LoadCursorW(nullptr, IDC_CROSS);
    frame.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    frame.lpszClassName = CLASS_NAME;
    RegisterClassExW(&frame);
}

}  // namespace

MainFrame::MainFrame()
    : m_prompt(host().lisp(), [](const std::u16string& error) { host().console().error(wideText(error)); }) {
    registerFrameClass(&windowProc);
    m_dpi = static_cast<int>(displayScale(nullptr).x * USER_DEFAULT_SCREEN_DPI);
    m_paper = CreateSolidBrush(PAPER);
    RECT screen;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    const int width = std::min<int>(scaled(FRAME_SIZE.cx), screen.right - screen.left);
    const int height = std::min<int>(scaled(FRAME_SIZE.cy), screen.bottom - screen.top);
    m_window = CreateWindowExW(0, CLASS_NAME, L"WexHost - Drawing1", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                               CW_USEDEFAULT, CW_USEDEFAULT, width, height, nullptr, nullptr,
                               GetModuleHandleW(nullptr), this);
    createFont();
    createChildren();
    layOut();
    ShowWindow(m_window, SW_SHOW);
    UpdateWindow(m_window);
    SetFocus(m_commandLine);
    // Showing text costs much more than printing it.
    if (host().isHeadless()) return;
    host().console().setListener([this](std::wstring_view text) { append(text); });
}

MainFrame::~MainFrame() {
    host().console().setListener(nullptr);
    if (m_window) DestroyWindow(m_window);
    DeleteObject(m_font);
    DeleteObject(m_paper);
}

void MainFrame::createFont() {
    DeleteObject(m_font);
    // Asked for with its pitch: another face may stand in for the one that is named.
    m_font = CreateFontW(-scaled(FONT_HEIGHT), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY, FIXED_PITCH | FF_MODERN,
                         L"Consolas");
}

void MainFrame::createChildren() {
    const auto child = [this](DWORD extended, const wchar_t* kind, const wchar_t* text, DWORD style) {
        HWND window = CreateWindowExW(extended, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                                      m_window, nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), FALSE);
        return window;
    };
    m_drawing = std::make_unique<DrawingWindow>(m_window, m_dpi);
    m_output = child(0, L"EDIT", L"", WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL);
    SendMessageW(m_output, EM_SETLIMITTEXT, 0, 0);
    SendMessageW(m_output, EM_SETMARGINS, EC_LEFTMARGIN, scaled(MARGIN));
    m_label = child(0, L"STATIC", LABEL, SS_CENTERIMAGE);
    m_commandLine = child(WS_EX_CLIENTEDGE, L"EDIT", L"", ES_AUTOHSCROLL);
    SetWindowSubclass(m_commandLine, &commandLineProc, 0, reinterpret_cast<DWORD_PTR>(this));
}

void MainFrame::rescale(int dpi, const RECT& place) {
    m_dpi = dpi;
    createFont();
    for (const HWND child : {m_output, m_label, m_commandLine}) {
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), TRUE);
    }
    m_drawing->setDpi(dpi);
    SetWindowPos(m_window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    layOut();
}

void MainFrame::layOut() {
    RECT client;
    GetClientRect(m_window, &client);
    const int margin = scaled(MARGIN);
    const int line = scaled(COMMAND_LINE_HEIGHT);
    const int lineTop = client.bottom - line - margin;
    const int outputTop = lineTop - margin - scaled(OUTPUT_HEIGHT);
    const int left = margin + scaled(LABEL_WIDTH);
    MoveWindow(m_drawing->window(), 0, 0, client.right, outputTop, TRUE);
    MoveWindow(m_output, 0, outputTop, client.right, lineTop - margin - outputTop, TRUE);
    MoveWindow(m_label, margin, lineTop, left - margin, line, TRUE);
    MoveWindow(m_commandLine, left, lineTop, client.right - margin - left, line, TRUE);
    InvalidateRect(m_window, nullptr, FALSE);
}

void MainFrame::paint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(m_window, &paint);
    FillRect(dc, &paint.rcPaint, GetSysColorBrush(COLOR_3DFACE));
    EndPaint(m_window, &paint);
}

void MainFrame::append(std::wstring_view text) {
    const int length = GetWindowTextLengthW(m_output);
    if (length > MOST_OUTPUT_CHARS) {
        SendMessageW(m_output, EM_SETSEL, 0, length / 2);
        SendMessageW(m_output, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
    }
    const int end = GetWindowTextLengthW(m_output);
    SendMessageW(m_output, EM_SETSEL, end, end);
    SendMessageW(m_output, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(withCarriageReturns(text).c_str()));
}

std::wstring MainFrame::commandLine() const {
    std::wstring text(GetWindowTextLengthW(m_commandLine), L'\0');
    GetWindowTextW(m_commandLine, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

void MainFrame::setCommandLine(const std::wstring& text) {
    SetWindowTextW(m_commandLine, text.c_str());
    SendMessageW(m_commandLine, EM_SETSEL, text.size(), text.size());
}

void MainFrame::enterLine() {
    const std::wstring line = commandLine();
    m_history.add(line);
    setCommandLine(L"");
    host().console().print((m_prompt.isContinuing() ? LABEL_CONTINUED : LABEL) + (L" " + line) + L"\n");
    m_prompt.enter(lispText(line));
    SetWindowTextW(m_label, m_prompt.isContinuing() ? LABEL_CONTINUED : LABEL);
}

bool MainFrame::onCommandKey(WPARAM key) {
    switch (key) {
        case VK_RETURN:
            enterLine();
            return true;
        case VK_UP:
            setCommandLine(m_history.older(commandLine()));
            return true;
        case VK_DOWN:
            setCommandLine(m_history.newer(commandLine()));
            return true;
        case VK_ESCAPE:
            m_prompt.cancel();
            setCommandLine(L"");
            SetWindowTextW(m_label, LABEL);
            return true;
        default:
            return false;
    }
}

LRESULT CALLBACK MainFrame::commandLineProc(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                            DWORD_PTR frame) noexcept {
    if (message == WM_KEYDOWN && reinterpret_cast<MainFrame*>(frame)->onCommandKey(w)) return 0;
    // The characters of those keys would only beep.
    if (message == WM_CHAR && (w == L'\r' || w == L'\x1B')) return 0;
    return DefSubclassProc(window, message, w, l);
}

LRESULT CALLBACK MainFrame::windowProc(HWND window, UINT message, WPARAM w, LPARAM l) noexcept {
    if (message == WM_NCCREATE) {
        auto* frame = static_cast<MainFrame*>(reinterpret_cast<CREATESTRUCTW*>(l)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(frame));
        frame->m_window = window;
    }
    auto* frame = reinterpret_cast<MainFrame*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!frame || !frame->m_commandLine) return DefWindowProcW(window, message, w, l);
    switch (message) {
        case WM_SIZE:
            frame->layOut();
            return 0;
        case WM_SETFOCUS:
            SetFocus(frame->m_commandLine);
            return 0;
        case WM_PAINT:
            frame->paint();
            return 0;
        case WM_CTLCOLORSTATIC:
            if (reinterpret_cast<HWND>(l) != frame->m_output) break;
            SetBkColor(reinterpret_cast<HDC>(w), PAPER);
            return reinterpret_cast<LRESULT>(frame->m_paper);
        // The command line has the focus and lets go of it.
        case WM_MOUSEWHEEL:
            return SendMessageW(frame->m_drawing->window(), message, w, l);
        case WM_ENTERIDLE:
            if (w == MSGF_DIALOGBOX) IdleWatch::loopIsEmpty(reinterpret_cast<HWND>(l));
            return 0;
        case WM_DPICHANGED:
            frame->rescale(LOWORD(w), *reinterpret_cast<const RECT*>(l));
            return 0;
        case WM_CLOSE:
            PostQuitMessage(0);
            return 0;
    }
    return DefWindowProcW(window, message, w, l);
}
