#include "host/runner/DialogKinds.h"

#include <algorithm>

#include "src/platform/base/DialogResources.h"
#include "src/platform/base/KeyListText.h"
#include "src/platform/base/Text.h"

namespace {

constexpr uint32_t BUTTON_KIND = 0xF;
constexpr uint32_t COMBO_KIND = 0x3;
constexpr uint32_t COMBO_OF_CHOICES = 0x3;
constexpr uint32_t READ_ONLY = 0x800;
constexpr uint32_t MULTI_LINE = 0x4;

struct Word {
    const wchar_t* className;
    const wchar_t* word;
};
constexpr Word WORDS[] = {
    {L"Static", L"label"},
    {L"ListBox", L"list"},
    {L"SysListView32", L"list control"},
    {L"SysTreeView32", L"tree"},
    {L"SysTabControl32", L"tab control"},
    {L"GXWND", L"grid"},
};

// With arrows or a triangle beside its text.
bool hasMark(const std::wstring& caption) {
    return caption.find(L"<<") != std::wstring::npos || caption.find(L">>") != std::wstring::npos ||
           caption.ends_with(L" ^") || caption.ends_with(L" v");
}

std::wstring buttonWord(const DialogTemplateControl& control, const std::vector<IconCaption>& captions) {
    if (control.exStyle & SLIDE_EX_STYLE) return L"image tile";
    if (control.style == FRAME_STYLE) return L"frame";
    switch (control.style & BUTTON_KIND) {
        case 0x2:  // BS_CHECKBOX
        case 0x3:  // BS_AUTOCHECKBOX
        case 0x5:  // BS_3STATE
        case 0x6:  // BS_AUTO3STATE
            return L"check box";
        case 0x4:  // BS_RADIOBUTTON
        case 0x9:  // BS_AUTORADIOBUTTON
            return L"radio button";
        case 0x7:  // BS_GROUPBOX
            return L"group box";
        default:
            break;
    }
    const bool isIcon = findIconCaption(captions, control) || hasMark(control.text);
    return isIcon ? L"image button" : (control.style & BUTTON_KIND) == 1 ? L"default button" : L"button";
}

}  // namespace

const IconCaption* findIconCaption(const std::vector<IconCaption>& captions,
                                   const DialogTemplateControl& control) {
    if (control.className != L"Button") return nullptr;
    const auto at = std::find_if(captions.begin(), captions.end(), [&](const IconCaption& icon) {
        return equalIgnoringCase(icon.caption, control.text);
    });
    return at == captions.end() ? nullptr : &*at;
}

std::wstring kindWord(const DialogTemplateControl& control, const std::vector<IconCaption>& captions) {
    if (control.className == L"Button") return buttonWord(control, captions);
    if (control.className == L"Edit")
        return control.style & READ_ONLY    ? L"edit box, read only"
               : control.style & MULTI_LINE ? L"edit box of several lines"
                                            : L"edit box";
    if (control.className == L"ComboBox")
        return (control.style & COMBO_KIND) == COMBO_OF_CHOICES ? L"drop-down list"
                                                                : L"drop-down list to type in";
    for (const auto& [className, word] : WORDS)
        if (equalIgnoringCase(className, control.className)) return word;
    return control.className;
}

int controlIdOfKey(const CString& key, size_t position) {
    if (key == L"ok" || key == L"accept") return OK_CONTROL_ID;
    if (key == L"cancel") return CANCEL_CONTROL_ID;
    return FIRST_KEY_CONTROL_ID + static_cast<int>(position);
}
