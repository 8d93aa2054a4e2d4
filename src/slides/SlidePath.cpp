#include "src/slides/SlidePath.h"

#include <algorithm>

namespace {

wchar_t lower(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; }
wchar_t upper(wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c; }

}  // namespace

bool equalNames(std::wstring_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return lower(x) == lower(y); });
}

std::wstring upperName(std::wstring_view name) {
    std::wstring result(name);
    std::transform(result.begin(), result.end(), result.begin(), upper);
    return result;
}

std::wstring_view extensionOf(std::wstring_view path) {
    const size_t dot = path.rfind(L'.');
    return dot == std::wstring_view::npos ? path : path.substr(dot);
}

bool hasExtension(std::wstring_view path, std::wstring_view extension) {
    return equalNames(extensionOf(path), extension);
}

std::wstring_view fileNameOf(std::wstring_view path) {
    const size_t slash = path.rfind(L'\\');
    return slash == std::wstring_view::npos ? path : path.substr(slash + 1);
}

bool isLibraryPath(std::wstring_view path) {
    return path.ends_with(L')') || equalNames(extensionOf(path).substr(0, 4), L".slb");
}

LibraryPath splitLibraryPath(std::wstring_view path) {
    if (!path.ends_with(L')')) return {std::wstring(path), {}};
    const size_t open = path.rfind(L'(');
    // Without a "(" there is no file to open.
    if (open == std::wstring_view::npos) return {};
    return {std::wstring(path.substr(0, open)), std::wstring(path.substr(open + 1, path.size() - open - 2))};
}

std::wstring slideNameOf(std::wstring_view path) {
    const size_t open = path.rfind(L'(');
    std::wstring_view name = open == std::wstring_view::npos ? fileNameOf(path) : path.substr(open + 1);
    if (open != std::wstring_view::npos && !name.empty()) name.remove_suffix(1);
    return std::wstring(name.substr(0, name.rfind(L'.')));
}
