// The colours of slides and image tiles. Portable.
#pragma once

#include <array>
#include <cstdint>

// 0x00BBGGRR, by colour index. Entries 1 to 255 are the host's palette; entry 256 has no index in a slide and
// is reached by image tiles only. Entries 0, 7 and 256 start as white and become the foreground of the last
// slide that was prepared, for the whole process: see CSlideObject::SetColors.
extern std::array<uint32_t, 257> g_slideColors;
