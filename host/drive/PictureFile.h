// Pictures as PNG files.
#pragma once

#include <string>

#include "host/drive/Picture.h"

// Both throw lisp::Error, which names the file, where it can't be written or read.
void writePicture(const Picture& picture, const std::wstring& path);
Picture readPicture(const std::wstring& path);
