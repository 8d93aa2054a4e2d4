// What the main frame does when a command is chosen, and what its menus hold.
#include <windows.h>

#include <commdlg.h>
#include <shellapi.h>

#include <exception>
#include <iterator>

#include "host/documents/Documents.h"
#include "host/frame/FrameMenus.h"
#include "host/frame/FrameViews.h"
#include "host/frame/HelpPages.h"
#include "host/frame/MainFrame.h"
#include "host/services/Host.h"
#include "host/services/ProgramFolder.h"
#include "host/services/Texts.h"
#include "host/services/Wine.h"
#include "src/platform/mfc/SystemFunction.h"

namespace fs = std::filesystem;

namespace {

constexpr size_t MOST_NAMES = 20;  // in one menu of dialogs, unless more have one first letter
constexpr double ZOOM_STEP = 1.25;

// Lisp that runs the dialog and gives its result.
std::u16string dialogExpression(const std::wstring& name) {
    return u"(progn (wex_new_dialog \"" + lispText(name) + u"\") (wex_start_dialog))";
}

// Does the work; what fails is told on the console.
template <class Work>
void telling(Work work) {
    try {
        work();
    } catch (const std::exception& error) {
        host().console().error(wideFromUtf8(error.what()));
    }
}

// By the program that the system has for such files; Wine hands it to the system below.
bool openBySystem(const fs::path& file) {
    const auto open = systemFunction<decltype(ShellExecuteW)>(L"shell32.dll", "ShellExecuteW");
    if (!open) return false;
    const std::wstring quoted = L"\"" + file.wstring() + L"\"";
    const HINSTANCE result =
        isUnderWine() ? open(nullptr, L"open", L"winebrowser.exe", quoted.c_str(), nullptr, SW_SHOWNORMAL)
                      : open(nullptr, L"open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    // Numbers up to 32 are errors.
    return reinterpret_cast<INT_PTR>(result) > 32;
}

}  // namespace

void MainFrame::createMenus() {
    m_keys = createAccelerators();
    m_menus = std::make_unique<BCMenuBar>(
        m_window, std::vector<BCMenuBar::Entry>{
                      {L"&File", [this](BCMenu& menu) { fillFileMenu(menu); }},
                      {L"&Dialogs", [this](BCMenu& menu) { FrameMenu(menu, m_window).addNames(dialogs()); }},
                      {L"&View", [this](BCMenu& menu) { fillViewMenu(menu); }},
                      {L"&Help", [this](BCMenu& menu) { FrameMenu(menu, m_window).addPages(); }},
                  });
}

bool MainFrame::translate(MSG& message) {
    if (message.hwnd != m_window && !IsChild(m_window, message.hwnd)) return false;
    return TranslateAcceleratorW(m_window, m_keys, &message) || IsDialogMessageW(m_window, &message);
}

const std::vector<NameGroup>& MainFrame::dialogs() {
    // Looked up once: an add-on that comes later is there at the next start, as it is for the plug-in.
    if (m_dialogs.empty()) m_dialogs = groupNames(m_work.dialogNames(), MOST_NAMES);
    return m_dialogs;
}

void MainFrame::fillFileMenu(BCMenu& menu) {
    FrameMenu file(menu, m_window);
    file.add(OPEN_PROGRAM);
    file.add(RUN_AGAIN, m_settings.programs.empty() ? BCMenu::DISABLED : BCMenu::NORMAL);
    file.addPrograms(m_settings.programs);
    file.addSeparator();
    file.add(LOAD_PLUGIN);
    file.addSeparator();
    file.add(EXIT);
}

void MainFrame::fillViewMenu(BCMenu& menu) {
    FrameMenu(menu, m_window).addViews(shownView(*m_drawing), m_drawing->style(), !m_drawing->isEmpty());
}

void MainFrame::showViewMenu(POINT at) {
    BCMenu menu;
    fillViewMenu(menu);
    if (const UINT chosen = menu.track(m_window, at)) command(chosen);
}

void MainFrame::command(UINT id) {
    const auto& programs = m_settings.programs;
    // A tool that was pressed gives the focus back.
    SetFocus(m_commandLine);
    if (id >= FIRST_DIALOG) {
        UINT first = FIRST_DIALOG;
        for (const NameGroup& group : dialogs()) {
            if (id - first < group.names.size()) return runDialog(group.names[id - first]);
            first += static_cast<UINT>(group.names.size());
        }
    } else if (id >= FIRST_RECENT) {
        if (id - FIRST_RECENT < programs.size())
            runProgram(programs[programs.size() - 1 - (id - FIRST_RECENT)]);
    } else if (id >= FIRST_PAGE) {
        if (id - FIRST_PAGE < helpPages().size()) openPage(id - FIRST_PAGE);
    } else if (id >= FIRST_STYLE) {
        if (id - FIRST_STYLE < STYLE_COUNT) m_drawing->setStyle(STYLE_TYPES[id - FIRST_STYLE]);
    } else if (id >= FIRST_VIEW) {
        if (id - FIRST_VIEW < VIEW_COUNT) m_drawing->see(VIEW_DIRECTIONS[id - FIRST_VIEW]);
    }
    switch (id) {
        case OPEN_PROGRAM:
            return openProgram();
        case RUN_AGAIN:
            if (!programs.empty()) runProgram(programs.back());
            return;
        case LOAD_PLUGIN:
            return loadPlugin();
        case EXIT:
            PostMessageW(m_window, WM_CLOSE, 0, 0);
            return;
        case FIT:
            return m_drawing->fit();
        case ZOOM_IN:
            return m_drawing->zoom(ZOOM_STEP);
        case ZOOM_OUT:
            return m_drawing->zoom(1.0 / ZOOM_STEP);
        case ABOUT:
            return about();
    }
}

std::wstring MainFrame::askForFile(const wchar_t* title, const wchar_t* filter, const std::wstring& folder) {
    const auto ask = systemFunction<decltype(GetOpenFileNameW)>(L"comdlg32.dll", "GetOpenFileNameW");
    if (!ask) return {};
    wchar_t path[4096] = {};
    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = m_window;
    request.lpstrFilter = filter;
    request.lpstrFile = path;
    request.nMaxFile = static_cast<DWORD>(std::size(path));
    request.lpstrInitialDir = folder.c_str();
    request.lpstrTitle = title;
    request.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    return ask(&request) ? path : L"";
}

// Where the last program lies; the first time where the examples do, or where the host was started.
void MainFrame::openProgram() {
    std::error_code ignored;
    fs::path folder = programFolder() / L"examples";
    if (!m_settings.programs.empty())
        folder = fs::path(m_settings.programs.back()).parent_path();
    else if (!fs::is_directory(folder, ignored))
        folder = fs::current_path(ignored);
    const std::wstring path =
        askForFile(L"Open Program", L"Lisp programs (*.lsp)\0*.lsp\0All files\0*.*\0", folder.wstring());
    if (!path.empty()) runProgram(path);
}

void MainFrame::runProgram(const std::wstring& path) {
    // `path` may be one of those that are moved.
    const std::wstring program = path;
    for (FrameSettings* settings : {&m_settings, &m_news}) settings->addProgram(program);
    if (m_tools) m_tools->enable(RUN_AGAIN, true);
    m_work.runProgram(program);
}

void MainFrame::loadPlugin() {
    const std::wstring path =
        askForFile(L"Load Plug-in", L"Plug-ins (*.pgx)\0*.pgx\0All files\0*.*\0", programFolder().wstring());
    if (path.empty()) return;
    telling([&] {
        documents().loadPlugin(path);
        host().console().print(L"Loaded " + path + L"\n");
    });
}

void MainFrame::runDialog(const std::wstring& name) {
    telling([&] {
        const lisp::Value result = host().lisp().evalText(dialogExpression(name), u"Dialogs");
        host().console().print(name + L": " + wideText(host().lisp().print(result)) + L"\n");
    });
}

void MainFrame::openPage(UINT page) {
    const HelpPage& wanted = helpPages()[page];
    const fs::path file = findHelpPage(wanted);
    if (file.empty()) {
        host().console().error(L"wexhost: the page " + std::wstring(wanted.file) + L" isn't there");
    } else if (host().isHeadless() || !openBySystem(file)) {
        // Nobody to read it, or nothing to show it.
        host().console().print(L"Help: " + file.wstring() + L"\n");
    }
}

void MainFrame::about() {
    MessageBoxW(m_window, L"WexHost " WEX_VERSION L"\nThe reference host of WexDialogs.", L"About WexHost",
                MB_OK | MB_ICONINFORMATION);
}
