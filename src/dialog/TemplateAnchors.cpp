#include "src/dialog/TemplateAnchors.h"

#include "src/platform/mfc/ModuleState.h"

std::map<int, TemplateAnchor> templateAnchors(HMODULE module, UINT templateId) {
    constexpr wchar_t TYPE[] = L"WEX_ANCHORS";
    std::map<int, TemplateAnchor> anchors;
    const wchar_t* name = MAKEINTRESOURCEW(templateId);
    if (!module) module = AfxFindResourceHandle(name, TYPE);
    // Without a module the system would search the host's executable.
    const HRSRC resource = module ? FindResourceW(module, name, TYPE) : nullptr;
    if (!resource) return anchors;
    const auto* numbers = static_cast<const WORD*>(LockResource(LoadResource(module, resource)));
    const size_t count = SizeofResource(module, resource) / sizeof *numbers;
    for (size_t at = 0; at + 3 < count; at += 4)
        anchors.emplace(numbers[at], TemplateAnchor{numbers[at + 1], {numbers[at + 2], numbers[at + 3]}});
    return anchors;
}
