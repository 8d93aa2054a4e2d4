// Picture files, as the platform's picture service decodes and draws them: BMP, JPEG, GIF, PNG, ICO,
// placeable WMF, EMF, and what its imaging component reads besides.
//
// The component model must have been initialised on this thread.
#pragma once

#include <windows.h>

#include <ocidl.h>

#include "src/pictures/ComPtr.h"

// The picture in a file, which nobody else may have open. Null where the file can't be read or decoded.
ComPtr<IPicture> loadPicture(const wchar_t* path);

// The same for a stream of `size` bytes at its beginning, by the imaging component alone. The picture lies on
// black where it is transparent.
ComPtr<IPicture> decodeByImagingComponent(IStream& stream);

// Draws the picture in an area of that size at (0, 0), in device pixels, where placeOfPicture puts it. What
// it leaves free or transparent stays as it was.
void drawPicture(IPicture& picture, HDC dc, SIZE area, bool fit);
