// What writing and reading of drawing files share.
#pragma once

#include <string_view>

#include "host/database/Entity.h"

namespace cad {

inline constexpr std::string_view DRAWING_HEAD = "wexdrawing 1";
inline constexpr std::string_view DRAWING_TAIL = "end-of-drawing";
inline constexpr const char* PATTERN_WORDS[] = {"continuous", "dashed", "dotted", "dashdot"};

// The fields of each plain kind in the order of its line. `io` writes them or reads them.
template <class Io>
void fields(Io& io, typename Io::template Field<Line> line) {
    io.point(line.start);
    io.point(line.end);
}

template <class Io>
void fields(Io& io, typename Io::template Field<Circle> circle) {
    io.point(circle.center);
    io.positive(circle.radius);
    io.direction(circle.normal);
}

template <class Io>
void fields(Io& io, typename Io::template Field<Arc> arc) {
    io.point(arc.center);
    io.positive(arc.radius);
    io.number(arc.start);
    io.number(arc.end);
    io.direction(arc.normal);
}

template <class Io, class Lettered, class... Widths>
void lettering(Io& io, Lettered& text, Widths&... width) {
    io.point(text.position);
    io.positive(text.height);
    (io.number(width), ...);
    io.number(text.rotation);
    io.direction(text.normal);
    io.quoted(text.contents);
}

template <class Io>
void fields(Io& io, typename Io::template Field<Text> text) {
    lettering(io, text);
}

template <class Io>
void fields(Io& io, typename Io::template Field<MText> text) {
    lettering(io, text, text.width);
}

template <class Io>
void fields(Io& io, typename Io::template Field<Solid> solid) {
    for (auto& corner : solid.corners) io.point(corner);
}

}  // namespace cad
