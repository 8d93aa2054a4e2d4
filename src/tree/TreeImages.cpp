#include "src/tree/TreeImages.h"

#include <cmath>

#include "src/platform/host/HostServices.h"
#include "src/shell/Module.h"
#include "src/shell/ValueOf.h"
#include "src/shell/Warning.h"
#include "src/tree/WexTree.h"

namespace {

int imageSide(const CWnd& tree) {
    const HMONITOR monitor = MonitorFromWindow(tree.m_hWnd, MONITOR_DEFAULTTONEAREST);
    return static_cast<int>(std::lround(TREE_IMAGE_SIDE * hostMonitorDpiXScale(monitor)));
}

void addIcon(const CImageList& images, const wchar_t* name, int side) {
    // The picture of that size, where an icon that is loaded without a size would be scaled.
    const auto icon = static_cast<HICON>(
        g_resourceInstance ? LoadImageW(g_resourceInstance, name, IMAGE_ICON, side, side, 0) : nullptr);
    images.Add(icon);
    if (icon)
        DestroyIcon(icon);
    else
        warn(WARN_NOT_FOUND, [=] {
            return L"there is no icon " +
                   (IS_INTRESOURCE(name) ? CString(std::to_wstring(LOWORD(name))) : quoted(name));
        });
}

}  // namespace

void setTreeImages(CWnd& tree, const HostValue* icons) {
    auto* wrapper = WexTree::of(&tree);
    if (!wrapper) return;
    const int side = imageSide(tree);
    CImageList images;
    images.Create(side, side, ILC_COLOR8 | ILC_MASK, 1, 1);
    for (; icons; icons = icons->next) {
        if (const auto number = shortOf(*icons))
            addIcon(images, MAKEINTRESOURCEW(static_cast<WORD>(*number)), side);
        else if (const wchar_t* name = textOf(*icons))
            addIcon(images, name, side);
    }
    wrapper->setImages(std::move(images));
}
