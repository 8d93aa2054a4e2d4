#include "src/tiles/ResizeFunctions.h"

#include <algorithm>
#include <utility>

#include "src/dialog/TileWarnings.h"

namespace {

// The lowest limit of a dialog's width and height, in pixels at 96 dots per inch.
constexpr int SMALLEST = 50;

constexpr wchar_t NO_MOVE[] = L"no move is open: wex_start_controlmove opens one";

void warnOfTooSmall(int width, int height) {
    if (std::min(width, height) < SMALLEST)
        warn(WARN_NO_EFFECT, L"a dialog is at least 50 pixels wide and high, whatever the limit");
}

// Reads width and height and hands them to `set`, where both can be used.
template <class Set>
void setLimits(LispCall& call, Set set) {
    const auto width = call.shortNumber();
    const auto height = call.shortNumber();
    if (call.lacksArgument()) return call.retNil();
    WexDialog* dialog = dialogToWork();
    if (dialog && width && height) set(*dialog, *width, *height);
    call.retVoid();
}

}  // namespace

void setResizing(LispCall& call) {
    const TileAddress address = call.tile();
    const auto code = call.shortNumber();
    if (call.lacksArgument()) return call.retNil();
    WexDialog* dialog = dialogToWork();
    if (dialog && code) {
        if (!isAnchorCode(*code))
            call.warnOfArgument([&] { return std::to_wstring(*code) + L" is no sum of anchor weights"; });
        // No anchor holds a tile at any time.
        if (dialog->hasApplied() && *code != -1)
            warnRuns(*dialog, L"anchors count from its start action (wex_setaction_oninit)");
        dialog->m_resizable = true;
        if (CCtrlInfo* tile = dialog->tileFor(address)) {
            tile->m_resizeCode = *code;
            tile->m_isCodeGiven = true;
        }
    }
    call.retVoid();
}

void setMinResizing(LispCall& call) {
    setLimits(call, [](WexDialog& dialog, int width, int height) {
        warnOfTooSmall(width, height);
        dialog.m_limits.minWidth = std::max(width, SMALLEST);
        dialog.m_limits.minHeight = std::max(height, SMALLEST);
        dialog.m_hasMinimum = true;
        dialog.m_resizable = true;
    });
}

void setMaxResizing(LispCall& call) {
    setLimits(call, [](WexDialog& dialog, int width, int height) {
        warnOfTooSmall(width, height);
        dialog.m_limits.maxWidth = width;
        dialog.m_limits.maxHeight = height;
    });
}

void startControlMove(LispCall& call) {
    const auto count = call.shortOrReal();
    WexDialog* dialog = dialogToWork();
    if (dialog && dialog->m_deferPos)
        warn(WARN_NOT_NOW, L"a move is open already: wex_end_controlmove makes it");
    if (dialog && count) {
        if (*count < 0)
            call.warnOfArgument([&] { return std::to_wstring(*count) + L" is no number of tiles"; });
        dialog->m_deferPos = BeginDeferWindowPos(*count);
    }
    call.retVoid();
}

void moveControl(LispCall& call) {
    const TileAddress tile = call.tile();
    const auto x = call.shortOrReal();
    const auto y = call.shortOrReal();
    const auto width = call.shortOrReal();
    const auto height = call.shortOrReal();
    const CWnd* control = controlOf(tile);
    if (!control || call.lacksArgument()) return call.retNil();
    if (!currentDialog()->m_deferPos) warn(WARN_NOT_NOW, NO_MOVE);
    // kept: the handle that comes back isn't stored, so the count that was given has to cover all moves.
    if (x && y && width && height)
        DeferWindowPos(currentDialog()->m_deferPos, control->m_hWnd, nullptr, *x, *y, *width, *height,
                       SWP_NOZORDER);
    call.retVoid();
}

void endControlMove(LispCall& call) {
    WexDialog* dialog = dialogToWork();
    if (dialog && !dialog->m_deferPos) warn(WARN_NOT_NOW, NO_MOVE);
    if (dialog && dialog->m_deferPos) {
        EndDeferWindowPos(std::exchange(dialog->m_deferPos, nullptr));
        dialog->redrawMoved();
    }
    call.retVoid();
}
