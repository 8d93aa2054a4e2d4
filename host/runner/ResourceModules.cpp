#include "host/runner/ResourceModules.h"

#include <filesystem>

namespace {

// Ids of the strings that can be key lists; a template has the id of its key list.
constexpr int FIRST_ID = 1500;
constexpr int LAST_ID = 3999;

constexpr wchar_t RESOURCE_MODULE[] = L"WexDialogsRes.dll";

std::optional<DialogTemplate> readTemplate(HMODULE module, HRSRC resource) {
    const auto* bytes = static_cast<const uint8_t*>(LockResource(LoadResource(module, resource)));
    return parseDialogTemplate({bytes, SizeofResource(module, resource)});
}

std::optional<ResourceModule> load(const std::filesystem::path& path) {
    ResourceModule module;
    module.name = path.filename().wstring();
    module.handle.reset(
        LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE));
    if (!module.handle) return std::nullopt;
    for (int id = FIRST_ID; id <= LAST_ID; ++id) {
        if (std::wstring text = module.text(id); !text.empty()) module.keyLists[id] = std::move(text);
        if (const HRSRC found = FindResourceW(module.handle.get(), MAKEINTRESOURCEW(id), RT_DIALOG))
            module.templates[id] = readTemplate(module.handle.get(), found);
    }
    return module;
}

std::filesystem::path programFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return std::filesystem::path(path).parent_path();
}

std::vector<std::filesystem::path> ownModules() {
    const std::filesystem::path folder = programFolder();
    std::vector<std::filesystem::path> paths{folder / L"WexDialogs.pgx", folder / RESOURCE_MODULE};
    std::error_code noFolder;
    for (const auto& entry : std::filesystem::directory_iterator(folder / L"WexDialogs.d", noFolder))
        if (entry.path().extension() == L".dll") paths.push_back(entry.path());
    return paths;
}

}  // namespace

std::wstring ResourceModule::text(int id) const {
    const wchar_t* text = nullptr;
    const int length = LoadStringW(handle.get(), id, reinterpret_cast<wchar_t*>(&text), 0);
    return {text, text + length};
}

std::optional<ResourceModule> ownResourceModule() { return load(programFolder() / RESOURCE_MODULE); }

std::vector<ResourceModule> loadResourceModules(std::span<const std::wstring> paths, std::wstring& missing) {
    std::vector<std::filesystem::path> wanted(paths.begin(), paths.end());
    if (wanted.empty()) wanted = ownModules();
    std::vector<ResourceModule> modules;
    for (const auto& path : wanted) {
        if (auto module = load(path))
            modules.push_back(std::move(*module));
        else if (missing.empty())
            missing = path.wstring();
    }
    return modules;
}
