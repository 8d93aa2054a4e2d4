// The host's main frame: menus, tools, an area for the drawing, output, and a command line with history.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/documents/DrawingWindow.h"
#include "host/frame/CommandHistory.h"
#include "host/frame/FrameSettings.h"
#include "host/frame/FrameTools.h"
#include "host/frame/NameGroups.h"
#include "host/frame/Prompt.h"
#include "src/platform/buttons/BCMenuBar.h"

// What the frame has done by others. None of these throws.
struct FrameWork {
    std::function<void(const std::wstring& path)> runProgram;
    std::function<std::vector<std::wstring>()> dialogNames;
};

class MainFrame {
  public:
    // Makes the window and shows it where it stood. `settings`: the file that keeps what a person finds again
    // the next time; empty for none.
    MainFrame(FrameWork work, std::filesystem::path settings);
    MainFrame(const MainFrame&) = delete;
    MainFrame& operator=(const MainFrame&) = delete;

    HWND window() const { return m_window; }
    // Readies all that a person works the frame by: the tools, and the output, which shows what the console
    // prints from now on. Done already unless the host is headless, where most runs open dialogs alone.
    void complete();
    // Whether the message was for the frame's own keys, such as those of its commands.
    bool translate(MSG& message);
    // Writes the settings. Where that fails the console tells so.
    void keepSettings();

  private:
    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l) noexcept;
    static LRESULT CALLBACK commandLineProc(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                            DWORD_PTR frame) noexcept;

    void createChildren();
    void createTools();
    // The tools of the drawing, where there is something to see.
    void enableViews();
    void createFont();
    void createMenus();
    RECT startingPlace() const;
    LRESULT handle(UINT message, WPARAM w, LPARAM l);

    // --- commands

    void command(UINT id);
    void openProgram();
    void runProgram(const std::wstring& path);
    void loadPlugin();
    void runDialog(const std::wstring& name);
    void openPage(UINT page);
    void about();
    void showViewMenu(POINT at);
    void fillFileMenu(BCMenu& menu);
    void fillViewMenu(BCMenu& menu);
    const std::vector<NameGroup>& dialogs();
    // The path that the person chooses; empty for none. `filter` as the system's dialog takes it.
    std::wstring askForFile(const wchar_t* title, const wchar_t* filter, const std::wstring& folder);

    // Moves to `place`, on a display of another scale.
    void rescale(int dpi, const RECT& place);
    void layOut();
    void paint();
    void append(std::wstring_view text);
    void enterLine();
    void setCommandLine(const std::wstring& text);
    std::wstring commandLine() const;
    // Whether the key has done its work.
    bool onCommandKey(WPARAM key);
    int scaled(int pixels) const { return MulDiv(pixels, m_dpi, USER_DEFAULT_SCREEN_DPI); }

    FrameWork m_work;
    std::filesystem::path m_settingsFile;
    FrameSettings m_settings;  // as they are shown
    FrameSettings m_news;      // what this run adds to the file
    std::vector<NameGroup> m_dialogs;
    HWND m_window = nullptr;
    HACCEL m_keys = nullptr;
    std::unique_ptr<BCMenuBar> m_menus;
    std::unique_ptr<FrameTools> m_tools;  // null until the frame is complete
    std::unique_ptr<DrawingWindow> m_drawing;
    HWND m_output = nullptr;
    HWND m_label = nullptr;
    HWND m_commandLine = nullptr;
    HFONT m_font = nullptr;
    HBRUSH m_paper = nullptr;
    int m_dpi = USER_DEFAULT_SCREEN_DPI;
    CommandHistory m_history;
    Prompt m_prompt;
};
