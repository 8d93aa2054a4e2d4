// The Lisp functions of image tiles. Coordinates are shorts: pixels of the tile, counted from its left upper
// corner.
#pragma once

#include "src/shell/LispCall.h"

// (wex_start_image tile) -> no value. Opens the tile's image, black.
void startImage(LispCall& call);

// (wex_vector_image tile x1 y1 x2 y2 color) -> no value; nil with the tile alone, -1 where a number is
// missing or no short.
void vectorImage(LispCall& call);

// (wex_fill_image tile x y width height color) -> the same, but no result at all where there is no such tile.
void fillImage(LispCall& call);

// (wex_slide_image x y width height name) -> no value; -1 where an argument is missing or of another type,
// and for a file that isn't found. In the open image: "library(member)" is a slide, any other name a picture
// file.
void slideImage(LispCall& call);

// (wex_end_image) -> no value. Closes the open image: what is drawn stays.
void endImage(LispCall& call);

// (wex_loadpicturefile tile file [fit]) -> no value; -1 without a file, and for one that isn't found. Fit
// stretches the picture over the tile: 1, T, and what is neither a short nor nil.
void loadPictureFile(LispCall& call);
