// The host's main frame: an area for the drawing, output, and a command line with history.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <string_view>

#include "host/documents/DrawingWindow.h"
#include "host/runner/CommandHistory.h"
#include "host/runner/Prompt.h"

class MainFrame {
  public:
    // Makes the window and shows it, and lets it show what the console prints.
    MainFrame();
    ~MainFrame();
    MainFrame(const MainFrame&) = delete;
    MainFrame& operator=(const MainFrame&) = delete;

    HWND window() const { return m_window; }

  private:
    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l) noexcept;
    static LRESULT CALLBACK commandLineProc(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                            DWORD_PTR frame) noexcept;

    void createChildren();
    void createFont();
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

    HWND m_window = nullptr;
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
