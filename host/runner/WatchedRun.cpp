#include "host/runner/WatchedRun.h"

#include <exception>
#include <fstream>

#include "host/documents/Documents.h"
#include "host/runner/WatchLink.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace fs = std::filesystem;

namespace {

// A loop's messages come first, so the timer tells that it is idle, in menus and message boxes too.
constexpr UINT TICK_MILLISECONDS = 30;
constexpr wchar_t PRESSED[] = L"7pressed";

WatchedRun* g_run = nullptr;

std::string escaped(const std::wstring& text) {
    std::wstring safe;
    for (const wchar_t c : text) {
        if (c == L'\\' || c == L'\t' || c == L'\n' || c == L'\r') {
            safe += L'\\';
            safe += c == L'\\' ? L'\\' : c == L'\t' ? L't' : c == L'\n' ? L'n' : L'r';
        } else {
            safe += c;
        }
    }
    return utf8Text(safe);
}

std::wstring unescaped(std::wstring_view text) {
    std::wstring plain;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == L'\\' && i + 1 < text.size();
        const wchar_t c = isEscape ? text[++i] : text[i];
        plain += !isEscape ? c : c == L't' ? L'\t' : c == L'n' ? L'\n' : c == L'r' ? L'\r' : c;
    }
    return plain;
}

}  // namespace

WatchedRun::WatchedRun(const std::wstring& link) {
    const size_t mark = link.find(L'=');
    const std::wstring watcher = link.substr(0, mark);
    m_folder = link.substr(mark + 1);
    m_endEvent = OpenEventW(SYNCHRONIZE, FALSE, endEventName(watcher).c_str());
    m_watcher = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(std::stoul(watcher)));
    readState();
    g_run = this;
    SetTimer(nullptr, 0, TICK_MILLISECONDS, &tick);
}

void WatchedRun::noteFile(const fs::path& file) {
    std::error_code error;
    const fs::path whole = fs::absolute(file, error);
    // The files of a dialog's actions come and go.
    const bool isOwn = whole.native().starts_with(fs::temp_directory_path(error).native());
    if (isOwn || !m_files.insert(whole).second) return;
    std::ofstream(m_folder / FOUND_FILES, std::ios::binary | std::ios::app)
        << utf8Text(whole.native()) << '\n';
}

void CALLBACK WatchedRun::tick(HWND, UINT, UINT_PTR, DWORD) noexcept { g_run->look(); }

void WatchedRun::look() noexcept {
    try {
        lookAtDialogs();
    } catch (const std::exception& error) {
        host().console().error(wideFromUtf8(error.what()));
    }
}

void WatchedRun::lookAtDialogs() {
    // Without the watching host nobody would ever end this one.
    if (WaitForSingleObject(m_watcher, 0) == WAIT_OBJECT_0) host().exit(0);
    if (WaitForSingleObject(m_endEvent, 0) == WAIT_OBJECT_0) {
        keepState();
        host().exit(0);
    }
    std::erase_if(m_open, [](const Opened& dialog) { return !IsWindow(dialog.window); });
    const HWND newest = documents().newestDialog();
    if (!newest || !IsWindowVisible(newest)) return;
    if (m_open.empty() || m_open.back().window != newest) return opened(newest);
    const HWND focus = GetFocus();
    if (focus && GetParent(focus) == newest) m_open.back().pressed = std::to_wstring(GetDlgCtrlID(focus));
}

void WatchedRun::opened(HWND dialog) {
    m_open.push_back({dialog, documents().nameOfWindow(dialog), dialogState(dialog), {}});
    const auto kept = m_kept.extract(m_open.back().name);
    if (kept.empty()) return;
    const DialogState& state = kept.mapped();
    restoreState(dialog, state);
    // What was open in front of it opens again by the button that had opened it.
    const auto pressed = state.find(PRESSED);
    if (pressed == state.end()) return;
    m_open.back().pressed = pressed->second;
    const HWND button = GetDlgItem(dialog, std::stoi(pressed->second));
    if (button && SendMessageW(button, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON))
        PostMessageW(button, BM_CLICK, 0, 0);
}

void WatchedRun::keepState() const {
    std::ofstream file(m_folder / KEPT_STATE, std::ios::binary);
    const auto write = [&](const std::wstring& dialog, const std::wstring& key, const std::wstring& value) {
        file << escaped(dialog) << '\t' << escaped(key) << '\t' << escaped(value) << '\n';
    };
    // What was never opened in this run may be in the next.
    for (const auto& [name, state] : m_kept)
        for (const auto& [key, value] : state) write(name, key, value);
    for (const Opened& dialog : m_open) {
        if (!IsWindow(dialog.window)) continue;
        const DialogState now = dialogState(dialog.window);
        DialogState changed = changedSince(dialog.atStart, now);
        const bool isBehind = &dialog != &m_open.back();
        if (isBehind && !dialog.pressed.empty()) changed[PRESSED] = dialog.pressed;
        for (const auto& [key, value] : changed) write(dialog.name, key, value);
    }
}

void WatchedRun::readState() {
    std::ifstream file(m_folder / KEPT_STATE, std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        const std::wstring text = wideFromUtf8(line);
        const size_t first = text.find(L'\t'), second = text.find(L'\t', first + 1);
        if (second == text.npos) continue;
        m_kept[unescaped(text.substr(0, first))][unescaped(text.substr(first + 1, second - first - 1))] =
            unescaped(text.substr(second + 1));
    }
}
