// Paths of slides and libraries, and names of slides in a library. Portable.
#pragma once

#include <string>
#include <string_view>

// Letter case as the run-time's plain comparison sees it: A to Z only.
bool equalNames(std::wstring_view a, std::wstring_view b);
std::wstring upperName(std::wstring_view name);

// The text from the last "." on, the whole where there is none.
std::wstring_view extensionOf(std::wstring_view path);
bool hasExtension(std::wstring_view path, std::wstring_view extension);

// The text behind the last "\", the whole where there is none.
std::wstring_view fileNameOf(std::wstring_view path);

// "library(name)" or the path of a library file.
bool isLibraryPath(std::wstring_view path);

struct LibraryPath {
    std::wstring file;
    std::wstring name;  // empty where the path names no member
};
LibraryPath splitLibraryPath(std::wstring_view path);

// The short name of a slide: the member's name or the file's, without its extension.
std::wstring slideNameOf(std::wstring_view path);
