#include "host/runner/ResourceModules.h"

#include <algorithm>
#include <filesystem>

#include "host/services/ProgramFolder.h"
#include "src/platform/base/AddOns.h"
#include "src/platform/base/DialogResources.h"
#include "src/platform/base/Text.h"

namespace {

using Paths = std::vector<std::filesystem::path>;

// The captions of which an icon is drawn, and the tips that the resource module has for the icons.
constexpr struct {
    const wchar_t* caption;
    int tip;
} MARKS[] = {{L"<<", 209}, {L">>", 210}, {L" ^", 1005}, {L" v", 1006}};
constexpr struct { int caption, tip; } NAMED_ICONS[] = {{114, 211}, {116, 212}};

std::optional<ResourceModule> load(const std::filesystem::path& path) {
    ResourceModule module;
    module.name = path.filename().wstring();
    module.handle.reset(
        LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE));
    if (!module.handle) return std::nullopt;
    for (int id = FIRST_KEY_LIST_ID; id <= LAST_KEY_LIST_ID; ++id) {
        if (std::wstring text = module.text(id); !text.empty()) module.keyLists[id] = std::move(text);
        if (const auto bytes = templateBytes(module, id); !bytes.empty())
            module.templates[id] = parseDialogTemplate(bytes);
    }
    return module;
}

bool hasNamesake(const Paths& paths, const std::filesystem::path& name) {
    return std::any_of(paths.begin(), paths.end(), [&](const auto& path) {
        return equalIgnoringCase(path.filename().wstring(), name.filename().wstring());
    });
}

Paths modulesInPlace() {
    const std::filesystem::path folder = programFolder();
    Paths paths = addOnPaths(folder);
    paths.insert(paths.begin(), {folder / PLUGIN_NAME, folder / RESOURCE_MODULE_NAME});
    return paths;
}

void addOtherHalves(Paths& paths) {
    for (const std::filesystem::path& half : Paths(paths)) {
        const bool isPlugin = equalIgnoringCase(half.filename().wstring(), PLUGIN_NAME);
        const bool isResources = equalIgnoringCase(half.filename().wstring(), RESOURCE_MODULE_NAME);
        if (!isPlugin && !isResources) continue;
        const auto other = half.parent_path() / (isPlugin ? RESOURCE_MODULE_NAME : PLUGIN_NAME);
        std::error_code ignored;
        if (!hasNamesake(paths, other) && std::filesystem::exists(other, ignored)) paths.push_back(other);
    }
}

}  // namespace

bool ResourceModule::isProducts() const {
    return equalIgnoringCase(name, PLUGIN_NAME) || equalIgnoringCase(name, RESOURCE_MODULE_NAME);
}

std::wstring ResourceModule::text(int id) const {
    const wchar_t* text = nullptr;
    const int length = LoadStringW(handle.get(), id, reinterpret_cast<wchar_t*>(&text), 0);
    return {text, text + length};
}

std::span<const uint8_t> templateBytes(const ResourceModule& module, int id) {
    const HMODULE handle = module.handle.get();
    const HRSRC resource = FindResourceW(handle, MAKEINTRESOURCEW(id), RT_DIALOG);
    if (!resource) return {};
    return {static_cast<const uint8_t*>(LockResource(LoadResource(handle, resource))),
            SizeofResource(handle, resource)};
}

std::vector<IconCaption> iconCaptions() {
    std::vector<IconCaption> captions;
    const auto own = load(programFolder() / RESOURCE_MODULE_NAME);
    if (!own) return captions;
    for (const auto& [caption, tip] : MARKS) captions.push_back({caption, own->text(tip)});
    for (const auto& [caption, tip] : NAMED_ICONS) captions.push_back({own->text(caption), own->text(tip)});
    return captions;
}

ResourceModules loadResourceModules(std::span<const std::wstring> paths) {
    Paths asked(paths.begin(), paths.end());
    if (asked.empty()) asked = modulesInPlace();
    addOtherHalves(asked);
    ResourceModules modules;
    for (const auto& path : asked) {
        if (auto module = load(path))
            modules.asked.push_back(std::move(*module));
        else
            modules.missing.push_back(path.wstring());
    }
    for (const auto& path : modulesInPlace())
        if (auto module = hasNamesake(asked, path) ? std::nullopt : load(path))
            modules.inPlace.push_back(std::move(*module));
    return modules;
}
