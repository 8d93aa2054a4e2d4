// The menu bar of a window: the platform's own, whose menus draw themselves. What is chosen comes to the
// window as WM_COMMAND.
//
//     m_bar = std::make_unique<BCMenuBar>(m_window, {{L"&File", [this](BCMenu& menu) { … }}, …});
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "src/platform/buttons/BCMenu.h"

class MenuOwner;

class BCMenuBar {
  public:
    struct Entry {
        std::wstring text;
        // Called each time before the menu opens, with an empty menu.
        std::function<void(BCMenu&)> fill;
    };

    BCMenuBar(HWND window, std::vector<Entry> entries);
    ~BCMenuBar();
    BCMenuBar(const BCMenuBar&) = delete;
    BCMenuBar& operator=(const BCMenuBar&) = delete;

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                      DWORD_PTR self) noexcept;
    void opens(HMENU handle);

    HWND m_window;
    HMENU m_bar;
    std::vector<Entry> m_entries;
    std::vector<std::unique_ptr<BCMenu>> m_menus;  // one for each entry
    std::unique_ptr<MenuOwner> m_owner;            // of the menu that was opened last
};
