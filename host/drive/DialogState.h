// What a person has made of a dialog: what is entered, checked, selected, opened, scrolled and paged, and
// where the window stands. Kept as texts, so that another run of the program can have it.
#pragma once

#include <windows.h>

#include <map>
#include <string>

// By what it is and of which control, as "3text 113": put back in the order of these names.
using DialogState = std::map<std::wstring, std::wstring>;

DialogState dialogState(HWND dialog);
// What of `now` is another than in `before`.
DialogState changedSince(const DialogState& before, const DialogState& now);
// Puts back what the dialog still has a control for. Lisp isn't told, but for what the controls tell by
// themselves.
void restoreState(HWND dialog, const DialogState& state);
