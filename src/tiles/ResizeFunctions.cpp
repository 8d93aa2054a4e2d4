#include "src/tiles/ResizeFunctions.h"

#include <algorithm>
#include <array>
#include <utility>

#include "src/dialog/WexDialog.h"
#include "src/shell/HostNumber.h"

namespace {

// The lowest limit of a dialog's width and height, in pixels at 96 dots per inch.
constexpr int SMALLEST = 50;

std::optional<int> shortOf(const HostValue& node) {
    return node.type == HV_SHORT ? std::optional<int>(node.value.shortValue) : std::nullopt;
}

std::optional<int> pixelsOf(const HostValue& node) {
    return node.type == HV_REAL ? std::optional<int>(truncated(node.value.realValue)) : shortOf(node);
}

// Reads width and height and hands them to `set`, where both can be used.
template <class Set>
void setLimits(LispCall& call, Set set) {
    const HostValue* width = call.next();
    const HostValue* height = call.next();
    if (!height) return call.retNil();
    WexDialog* dialog = currentDialog();
    const auto w = shortOf(*width), h = shortOf(*height);
    if (dialog && w && h) set(*dialog, *w, *h);
    call.retVoid();
}

}  // namespace

void setResizing(LispCall& call) {
    const TileAddress address = call.tile();
    const HostValue* code = call.next();
    if (!code) return call.retNil();
    WexDialog* dialog = currentDialog();
    const auto number = shortOf(*code);
    if (dialog && number) {
        dialog->m_resizable = true;
        if (CCtrlInfo* tile = dialog->tileFor(address)) tile->m_resizeCode = *number;
    }
    call.retVoid();
}

void setMinResizing(LispCall& call) {
    setLimits(call, [](WexDialog& dialog, int width, int height) {
        dialog.m_limits.minWidth = std::max(width, SMALLEST);
        dialog.m_limits.minHeight = std::max(height, SMALLEST);
        dialog.m_resizable = true;
    });
}

void setMaxResizing(LispCall& call) {
    setLimits(call, [](WexDialog& dialog, int width, int height) {
        dialog.m_limits.maxWidth = width;
        dialog.m_limits.maxHeight = height;
    });
}

void startControlMove(LispCall& call) {
    const auto count = pixelsOf(*call.next());
    WexDialog* dialog = currentDialog();
    if (dialog && count) dialog->m_deferPos = BeginDeferWindowPos(*count);
    call.retVoid();
}

void moveControl(LispCall& call) {
    const TileAddress tile = call.tile();
    std::array<std::optional<int>, 4> numbers;
    for (auto& number : numbers) {
        const HostValue* node = call.next();
        if (!node) return call.retNil();
        number = pixelsOf(*node);
    }
    const WexDialog* dialog = currentDialog();
    const CWnd* control = dialog ? dialog->itemFor(tile) : nullptr;
    if (!control) return call.retNil();
    const auto& [x, y, width, height] = numbers;
    // kept: the handle that comes back isn't stored, so the count that was given has to cover all moves.
    if (x && y && width && height)
        DeferWindowPos(dialog->m_deferPos, control->m_hWnd, nullptr, *x, *y, *width, *height, SWP_NOZORDER);
    call.retVoid();
}

void endControlMove(LispCall& call) {
    WexDialog* dialog = currentDialog();
    if (dialog && dialog->m_deferPos) {
        EndDeferWindowPos(std::exchange(dialog->m_deferPos, nullptr));
        dialog->redrawMoved();
    }
    call.retVoid();
}
