#include "src/dialog/ControlKind.h"

namespace {

struct ClassRow {
    std::wstring_view className;
    ControlKind kind;
};

constexpr ClassRow CLASS_ROWS[] = {
    {L"GXWND", ControlKind::grid},         {L"SysTabControl32", ControlKind::tab},
    {L"SysTreeView32", ControlKind::tree}, {L"Edit", ControlKind::edit},
    {L"Static", ControlKind::staticText},  {L"ListBox", ControlKind::listBox},
    {L"ComboBox", ControlKind::comboBox},  {L"SysListView32", ControlKind::listControl},
};

}  // namespace

ControlKind controlKindOf(const ControlTraits& control, const ButtonCaptions& captions) {
    if (control.className == L"Button") {
        if (control.exStyle & SLIDE_EX_STYLE) return ControlKind::slideImage;
        if (control.style == FRAME_STYLE) return ControlKind::frame;
        return isImageButtonCaption(control.caption, captions) ? ControlKind::imageButton
                                                               : ControlKind::button;
    }
    for (const ClassRow& row : CLASS_ROWS)
        if (row.className == control.className) return row.kind;
    return ControlKind::unknown;
}
