// Headers of picture files, and all records of metafiles.
#include <cstddef>
#include <cstdint>

#include "src/pictures/PictureGuard.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    isSoundPicture({data, size});
    return 0;
}
