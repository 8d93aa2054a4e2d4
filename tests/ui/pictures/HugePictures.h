// Picture files that tests make: 6,000 x 4,000 pixels (a GIF a fifth of that each way), and metafiles of
// thousands of records. All are black above and white below.
#pragma once

#include <windows.h>

#include <functional>
#include <vector>

using Bytes = std::vector<char>;

// By the platform's encoder of that kind, GUID_ContainerFormat….
Bytes hugeImage(const GUID& container);
// 2,000 x 2,000 pixels.
Bytes hugeIcon();
Bytes hugeMetafile();
Bytes hugeEnhMetafile();

// What is drawn on `size`, as a metafile with a placeable header, and as an enhanced one.
Bytes metafile(SIZE size, const std::function<void(HDC)>& draw);
Bytes enhMetafile(SIZE size, const std::function<void(HDC)>& draw);
