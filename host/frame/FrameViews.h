// The sides from which the main frame shows a drawing, and the styles in which it draws.
#pragma once

#include <optional>

#include "host/documents/DrawingWindow.h"
#include "src/platform/host/HostGraphics.h"

enum FrameView { VIEW_TOP, VIEW_FRONT, VIEW_RIGHT, VIEW_ISOMETRIC, VIEW_COUNT };
enum FrameStyle { STYLE_WIREFRAME_2D, STYLE_WIREFRAME_3D, STYLE_HIDDEN, STYLE_SHADED, STYLE_COUNT };

// From the drawing towards who looks at it.
inline constexpr HostVector3d VIEW_DIRECTIONS[VIEW_COUNT] = {{0, 0, 1}, {0, -1, 0}, {1, 0, 0}, {1, -1, 1}};
inline constexpr int STYLE_TYPES[STYLE_COUNT] = {HOST_STYLE_WIREFRAME_2D, HOST_STYLE_WIREFRAME_3D,
                                                 HOST_STYLE_HIDDEN, HOST_STYLE_SHADED};

// Of the drawing as it is seen now; none where it was turned to some other side.
inline std::optional<int> shownView(DrawingWindow& drawing) {
    for (int view = 0; view < VIEW_COUNT; ++view)
        if ((VIEW_DIRECTIONS[view].normal() - drawing.direction()).length() < 1e-6) return view;
    return std::nullopt;
}
