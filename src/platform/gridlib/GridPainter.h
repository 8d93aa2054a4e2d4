// Draws the part of a table that is in view.
#pragma once

#include "src/platform/gridlib/CGXGridCore.h"
#include "src/platform/gridlib/GridLook.h"
#include "src/platform/gridlib/TrackView.h"

// What is drawn, of a grid that stays as it is meanwhile.
struct GridScene {
    const CGXGridCore& grid;
    const TrackView& rows;
    const TrackView& cols;
    const GridLook& look;
    bool isEnabled;
    bool hasFocus;
    // Cells that refused what was last given to them, in order.
    const std::vector<CellPlace>& refused;
    // The cells that are in view, headers included: from row and column 0 on, of which those between the
    // headers and the first ones in view don't show.
    CGXRange view;
};

// The merged cells in whose middle a cell stands, and where they are in view, in client pixels.
struct ShownCell {
    CGXRange cells;
    RECT rect;
};
ShownCell shownCell(const GridScene& scene, CellPlace at);

// The colours of a cell that isn't selected; the style's own, else those of its kind.
struct CellColors {
    COLORREF interior, text;
};
CellColors cellColors(const GridScene& scene, const CGXStyle& style);

// Draws what lies in `area`, in client pixels, all of it.
void paintGrid(HDC dc, const RECT& area, const GridScene& scene);

// How high the row of a run of merged cells must be to show all of its text, how wide the column of a cell,
// in client pixels.
int fittingHeight(HDC dc, const GridScene& scene, const CGXRange& cells);
int fittingWidth(HDC dc, const GridScene& scene, CellPlace at);
