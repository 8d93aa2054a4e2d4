// The context menu of the drawing preview.
#include "src/platform/host/HostGraphics.h"
#include "src/preview/CGsPreviewCtrl.h"
#include "src/preview/GraphicsError.h"
#include "src/shell/TileMenu.h"

namespace {

struct View {
    MenuTextId text;
    HostVector3d direction;  // from the target towards the camera
};
const View VIEWS[] = {
    {MenuTextId::top, {0, 0, 1}},
    {MenuTextId::front, {0, -1, 0}},
    {MenuTextId::right, {1, 0, 0}},
    {MenuTextId::isometric, {1, -1, 1}},
};

struct Style {
    MenuTextId text;
    int type;
};
constexpr Style STYLES[] = {
    {MenuTextId::wireframe2d, HOST_STYLE_WIREFRAME_2D},
    {MenuTextId::wireframe3d, HOST_STYLE_WIREFRAME_3D},
    {MenuTextId::hidden, HOST_STYLE_HIDDEN},
    {MenuTextId::shaded, HOST_STYLE_SHADED},
};

enum Command : UINT { FIT = 1, FIRST_VIEW = 10, FIRST_STYLE = 20 };

bool isSame(const HostVector3d& a, const HostVector3d& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

}  // namespace

// By the keyboard alone: the right button belongs to the view, whose double click a menu would take.
LRESULT CGsPreviewCtrl::onContextMenu(WPARAM, LPARAM l) {
    if (isFromKeyboard(l)) showMenu();
    return 0;
}

void CGsPreviewCtrl::showMenu() {
    if (!m_view || m_blockName.empty()) return;
    if (m_chosenFor != m_blockName) {
        m_chosenFor = m_blockName;
        m_direction = VIEWS[0].direction;
        m_style = HOST_STYLE_WIREFRAME_2D;
    }
    TileMenu menu;
    menu.add(FIT, MenuTextId::fitDrawing, MenuIcon::fit);
    menu.addSeparator();
    BCMenu& views = menu.addMenu(MenuTextId::view);
    for (UINT at = 0; at < std::size(VIEWS); ++at)
        TileMenu::addChoice(views, FIRST_VIEW + at, VIEWS[at].text, isSame(m_direction, VIEWS[at].direction));
    BCMenu& styles = menu.addMenu(MenuTextId::style);
    for (UINT at = 0; at < std::size(STYLES); ++at)
        TileMenu::addChoice(styles, FIRST_STYLE + at, STYLES[at].text, m_style == STYLES[at].type);
    const UINT command = menu.choose(*this, -1, RECT{});
    if (command >= FIRST_STYLE)
        setShownStyle(STYLES[command - FIRST_STYLE].type);
    else if (command >= FIRST_VIEW)
        see(VIEWS[command - FIRST_VIEW].direction);
    else if (command == FIT)
        see(m_direction);
}

// The block whole, seen from there, in the style that was chosen. Of a loaded drawing too, which showing a
// block by its name may end.
void CGsPreviewCtrl::see(const HostVector3d& direction) {
    const CString name = m_blockName;
    m_direction = direction;
    clearGraphics();
    m_blockName = name;
    frameShown(0.0, true, 1, direction);
    setShownStyle(m_style);
}

void CGsPreviewCtrl::setShownStyle(int type) {
    m_style = type;
    setVisualStyleType(type);
    Invalidate();
}
