#include "host/frame/MainFrame.h"

#include <commctrl.h>

#include <algorithm>
#include <exception>
#include <initializer_list>

#include "host/documents/Database.h"
#include "host/drive/IdleWatch.h"
#include "host/frame/FrameMenus.h"
#include "host/services/DisplayScale.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"
#include "src/platform/mfc/HighContrast.h"

namespace {

constexpr wchar_t CLASS_NAME[] = L"WexHostFrame";
constexpr wchar_t LABEL[] = L"Command:";
constexpr wchar_t LABEL_CONTINUED[] = L"more:";

// The ids of the frame's parts.
enum Part : UINT { TOOLS = 101, DRAWING, OUTPUT, COMMAND_LINE };

// Pixels at 96 dots per inch.
constexpr SIZE FRAME_SIZE = {960, 640};
constexpr int FONT_HEIGHT = 15;
constexpr int MARGIN = 6;
constexpr int LABEL_WIDTH = 80;
constexpr int COMMAND_LINE_HEIGHT = 22;
constexpr int OUTPUT_HEIGHT = 150;

// The output forgets its older half when it has grown to this many characters.
constexpr int MOST_OUTPUT_CHARS = 200'000;

constexpr COLORREF PAPER = RGB(250, 250, 248);

// The keys that onCommandKey knows.
bool isCommandKey(WPARAM key) {
    return key == VK_RETURN || key == VK_UP || key == VK_DOWN || key == VK_ESCAPE;
}

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

// Of a file that isn't there or can't be read: none.
FrameSettings readSettings(const std::filesystem::path& file) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored)) return {};
    try {
        return parseFrameSettings(fileBytes(file.wstring(), HOST_SHARE_READ));
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace

MainFrame::MainFrame(FrameWork work, std::filesystem::path settings)
    : m_work(std::move(work)),
      m_settingsFile(std::move(settings)),
      m_settings(readSettings(m_settingsFile)),
      m_prompt(host().lisp(), [](const std::u16string& error) { host().console().error(wideText(error)); }) {
    for (const std::wstring& line : m_settings.history) m_history.add(line);
    registerFrameClass(&windowProc);
    m_dpi = static_cast<int>(displayScale(nullptr).x * USER_DEFAULT_SCREEN_DPI);
    m_paper = CreateSolidBrush(PAPER);
    const RECT place = startingPlace();
    m_window = CreateWindowExW(0, CLASS_NAME, L"WexHost - Drawing1", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                               place.left, place.top, place.right, place.bottom, nullptr, nullptr,
                               GetModuleHandleW(nullptr), this);
    createFont();
    createMenus();
    createChildren();
    layOut();
    ShowWindow(m_window, m_settings.place && m_settings.place->maximized ? SW_SHOWMAXIMIZED : SW_SHOW);
    UpdateWindow(m_window);
    SetFocus(m_commandLine);
    if (!host().isHeadless()) complete();
}

void MainFrame::complete() {
    if (m_tools) return;
    createTools();
    // Focus and mnemonics show once the keyboard is used.
    SendMessageW(m_window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_INITIALIZE, 0), 0);
    layOut();
    // Showing text costs much more than printing it.
    host().console().setListener([this](std::wstring_view text) { append(text); });
}

// Width and height in place of right and bottom.
RECT MainFrame::startingPlace() const {
    RECT screen;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    if (!m_settings.place) {
        const int width = std::min<int>(scaled(FRAME_SIZE.cx), screen.right - screen.left);
        const int height = std::min<int>(scaled(FRAME_SIZE.cy), screen.bottom - screen.top);
        return {CW_USEDEFAULT, CW_USEDEFAULT, width, height};
    }
    const FrameBox& stood = m_settings.place->box;
    const RECT wanted = {stood.left, stood.top, stood.right, stood.bottom};
    MONITORINFO monitor = {sizeof monitor, {}, {}, 0};
    const HMONITOR nearest = MonitorFromRect(&wanted, MONITOR_DEFAULTTONEAREST);
    if (GetMonitorInfoW(nearest, &monitor)) screen = monitor.rcWork;
    const int dpi = static_cast<int>(displayScale(nearest).x * USER_DEFAULT_SCREEN_DPI);
    const FrameBox box = placeWithin(*m_settings.place, dpi,
                                     {static_cast<int>(screen.left), static_cast<int>(screen.top),
                                      static_cast<int>(screen.right), static_cast<int>(screen.bottom)});
    return {box.left, box.top, box.right - box.left, box.bottom - box.top};
}

void MainFrame::keepSettings() {
    if (m_settingsFile.empty()) return;
    WINDOWPLACEMENT stands = {};
    stands.length = sizeof stands;
    if (IsWindow(m_window) && GetWindowPlacement(m_window, &stands)) {
        // The platform counts it from the corner of the free area.
        MONITORINFO monitor = {sizeof monitor, {}, {}, 0};
        GetMonitorInfoW(MonitorFromWindow(m_window, MONITOR_DEFAULTTONEAREST), &monitor);
        RECT& box = stands.rcNormalPosition;
        OffsetRect(&box, monitor.rcWork.left - monitor.rcMonitor.left,
                   monitor.rcWork.top - monitor.rcMonitor.top);
        m_news.place = {{static_cast<int>(box.left), static_cast<int>(box.top), static_cast<int>(box.right),
                         static_cast<int>(box.bottom)},
                        m_dpi,
                        stands.showCmd == SW_SHOWMAXIMIZED};
    }
    try {
        // Read anew: another host may have added to it meanwhile.
        FrameSettings settings = readSettings(m_settingsFile);
        settings.add(m_news);
        std::filesystem::create_directories(m_settingsFile.parent_path());
        writeWhole(m_settingsFile.wstring(), frameSettingsText(settings));
    } catch (const std::exception& fault) {
        host().console().error(L"wexhost: can't keep the main frame's settings in " +
                               m_settingsFile.wstring() + L": " + wideFromUtf8(fault.what()));
    }
}

void MainFrame::createFont() {
    DeleteObject(m_font);
    // Asked for with its pitch: another face may stand in for the one that is named.
    m_font = CreateFontW(-scaled(FONT_HEIGHT), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY, FIXED_PITCH | FF_MODERN,
                         L"Consolas");
}

void MainFrame::createChildren() {
    const auto child = [this](DWORD extended, const wchar_t* kind, const wchar_t* text, DWORD style,
                              UINT id) {
        HWND window =
            CreateWindowExW(extended, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, m_window,
                            reinterpret_cast<HMENU>(UINT_PTR{id}), GetModuleHandleW(nullptr), nullptr);
        SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), FALSE);
        return window;
    };
    m_drawing = std::make_unique<DrawingWindow>(m_window, m_dpi);
    SetWindowLongPtrW(m_drawing->window(), GWLP_ID, DRAWING);
    m_output =
        child(0, L"EDIT", L"", WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL, OUTPUT);
    SendMessageW(m_output, EM_SETLIMITTEXT, 0, 0);
    SendMessageW(m_output, EM_SETMARGINS, EC_LEFTMARGIN, scaled(MARGIN));
    m_label = child(0, L"STATIC", LABEL, SS_CENTERIMAGE, 0);
    m_commandLine = child(WS_EX_CLIENTEDGE, L"EDIT", L"", WS_TABSTOP | ES_AUTOHSCROLL, COMMAND_LINE);
    SetWindowSubclass(m_commandLine, &commandLineProc, 0, reinterpret_cast<DWORD_PTR>(this));
}

// The first of the children, where Tab finds it.
void MainFrame::createTools() {
    m_tools = std::make_unique<FrameTools>(m_window, TOOLS, m_dpi);
    SetWindowPos(m_tools->m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    m_tools->enable(RUN_AGAIN, !m_settings.programs.empty());
    enableViews();
}

void MainFrame::enableViews() {
    if (m_tools) m_tools->enableViews(!m_drawing->isEmpty());
}

void MainFrame::rescale(int dpi, const RECT& place) {
    m_dpi = dpi;
    createFont();
    for (const HWND child : {m_output, m_label, m_commandLine}) {
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), TRUE);
    }
    if (m_tools) m_tools->setDpi(dpi);
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
    const int tools = FrameTools::heightAt(m_dpi);
    if (m_tools) m_tools->MoveWindow({0, 0, client.right, tools});
    MoveWindow(m_drawing->window(), 0, tools, client.right, std::max(0, outputTop - tools), TRUE);
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
    m_news.addLine(line);
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
    // Without it the keys would be taken for those of a dialog.
    if (message == WM_GETDLGCODE && isCommandKey(w)) return DLGC_WANTMESSAGE;
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
    return frame->handle(message, w, l);
}

LRESULT MainFrame::handle(UINT message, WPARAM w, LPARAM l) {
    switch (message) {
        case WM_SIZE:
            layOut();
            return 0;
        case WM_SETFOCUS:
            SetFocus(m_commandLine);
            return 0;
        case WM_PAINT:
            paint();
            return 0;
        case WM_CTLCOLORSTATIC:
            if (reinterpret_cast<HWND>(l) != m_output || highContrastIsOn()) break;
            SetBkColor(reinterpret_cast<HDC>(w), PAPER);
            return reinterpret_cast<LRESULT>(m_paper);
        // The command line has the focus and lets go of it.
        case WM_MOUSEWHEEL:
            return SendMessageW(m_drawing->window(), message, w, l);
        case WM_COMMAND:
            if (!l)
                command(LOWORD(w));
            else if (reinterpret_cast<HWND>(l) == m_drawing->window())
                enableViews();
            return 0;
        // The output asks for the next one where a tab comes.
        case WM_NEXTDLGCTL:
            SetFocus(l ? reinterpret_cast<HWND>(w) : GetNextDlgTabItem(m_window, GetFocus(), w != 0));
            return 0;
        case WM_CONTEXTMENU:
            if (reinterpret_cast<HWND>(w) != m_drawing->window()) break;
            showViewMenu({static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))});
            return 0;
        case WM_ENTERIDLE:
            if (w == MSGF_DIALOGBOX) IdleWatch::loopIsEmpty(reinterpret_cast<HWND>(l));
            return 0;
        case WM_DPICHANGED:
            rescale(LOWORD(w), *reinterpret_cast<const RECT*>(l));
            return 0;
        case WM_ENDSESSION:
            if (w) keepSettings();
            return 0;
        case WM_CLOSE:
            PostQuitMessage(0);
            return 0;
    }
    return DefWindowProcW(m_window, message, w, l);
}
