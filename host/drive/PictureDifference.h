// Whether two pictures show the same, and what is different in them. Portable.
#pragma once

#include <string>

#include "host/drive/Picture.h"

struct PictureDifference {
    bool sameSize = false;
    int points = 0;     // of the first picture
    int differing = 0;  // more than a shade apart; 0 where the sizes differ

    // Of the same size, and so little apart that nobody would see it, as where another machine smooths its
    // fonts. A single letter that changed is more than that.
    bool looksSame() const;
    // Such as "38 of 120000 points differ".
    std::wstring text() const;
};

PictureDifference compare(const Picture& approved, const Picture& taken);

// The second picture, pale, with the points in red that differ; as large as both together.
Picture markDifferences(const Picture& approved, const Picture& taken);
