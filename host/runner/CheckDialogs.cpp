#include "host/runner/CheckDialogs.h"

#include <map>

#include "host/runner/DialogFindings.h"
#include "host/runner/ResourceModules.h"
#include "host/runner/TextMeasure.h"
#include "host/services/Host.h"

namespace {

// The captions of the resource module that become icons.
constexpr int ICON_CAPTION_IDS[] = {114, 116};

void print(const std::wstring& line) { host().console().print(line + L"\n"); }

std::wstring counted(size_t count, const std::wstring& what) {
    return std::to_wstring(count) + L' ' + what + (count == 1 ? L"" : L"s");
}

class DialogCheck {
  public:
    explicit DialogCheck(const std::vector<ResourceModule>& modules) : m_modules(modules) {
        const std::optional<ResourceModule> own = ownResourceModule();
        if (!own) return;
        for (const int id : ICON_CAPTION_IDS) m_iconCaptions.push_back(own->text(id));
    }

    void check(const ResourceModule& module) {
        for (const auto& [id, text] : module.keyLists) checkList(module, id, text);
        for (const auto& [id, dialog] : module.templates)
            if (!hasKeyList(module, id))
                find(module.name, L"template " + std::to_wstring(id) + L" has no key list: add the string " +
                                      std::to_wstring(id));
        if (!m_withoutTemplate.empty())
            print(L"note: " + module.name + L" has key lists without a template: " + m_withoutTemplate);
        m_withoutTemplate.clear();
    }

    int dialogs() const { return m_dialogs; }
    int found() const { return m_found; }

  private:
    void find(const std::wstring& dialog, const std::wstring& finding) {
        ++m_found;
        print(dialog + L": " + finding);
    }

    void checkList(const ResourceModule& module, int id, const std::wstring& text) {
        const std::wstring name(keyListName(text));
        const auto keys = parseKeyList(text);
        if (!keys)
            return find(module.name,
                        L"string " + std::to_wstring(id) + L" is no key list: write NAME,key,key");
        const auto [holder, isNew] = m_names.emplace(keys->name, module.name);
        if (!isNew) find(name, L"is in " + holder->second + L" already, and the first is taken: rename it");
        const std::optional<DialogTemplate>* dialog = templateOf(module, id);
        if (!dialog) {
            m_withoutTemplate += (m_withoutTemplate.empty() ? L"" : L", ") + name;
            return;
        }
        ++m_dialogs;
        if (!*dialog)
            return find(name, L"template " + std::to_wstring(id) + L" can't be read: compile it anew");
        const TextMeasure measure(**dialog);
        const auto fits = [&](const std::wstring& words, const TextRoom& room) {
            return measure.fits(words, room);
        };
        for (const std::wstring& finding : findMismatches(*keys, **dialog, m_iconCaptions, fits))
            find(name, finding);
    }

    // A module's own template, or one of a module that has no key lists.
    const std::optional<DialogTemplate>* templateOf(const ResourceModule& module, int id) const {
        const auto in = [id](const ResourceModule& other) -> const std::optional<DialogTemplate>* {
            const auto at = other.templates.find(id);
            return at == other.templates.end() ? nullptr : &at->second;
        };
        if (const auto* own = in(module)) return own;
        for (const ResourceModule& other : m_modules)
            if (const auto* found = other.keyLists.empty() ? in(other) : nullptr) return found;
        return nullptr;
    }

    bool hasKeyList(const ResourceModule& module, int id) const {
        if (!module.keyLists.empty()) return module.keyLists.contains(id);
        for (const ResourceModule& other : m_modules)
            if (other.keyLists.contains(id)) return true;
        return false;
    }

    const std::vector<ResourceModule>& m_modules;
    std::vector<std::wstring> m_iconCaptions;
    std::map<std::wstring, std::wstring> m_names;  // the module of each dialog name seen so far
    std::wstring m_withoutTemplate;
    int m_dialogs = 0;
    int m_found = 0;
};

}  // namespace

int checkDialogs(std::span<const std::wstring> paths) {
    std::wstring missing;
    const std::vector<ResourceModule> modules = loadResourceModules(paths, missing);
    if (!missing.empty()) {
        print(missing + L": can't be loaded");
        return 1;
    }
    DialogCheck check(modules);
    for (const ResourceModule& module : modules) check.check(module);
    print(counted(check.dialogs(), L"dialog") + L" in " + counted(modules.size(), L"module") + L", " +
          std::to_wstring(check.found()) + (check.found() == 1 ? L" mismatch" : L" mismatches"));
    return check.found() ? 1 : 0;
}
