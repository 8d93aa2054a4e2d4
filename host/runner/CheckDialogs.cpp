#include "host/runner/CheckDialogs.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <set>

#include "host/runner/DialogFindings.h"
#include "host/runner/OpenedDialog.h"
#include "host/runner/ResourceModules.h"
#include "host/runner/TextMeasure.h"
#include "host/services/Host.h"
#include "src/platform/base/DialogResources.h"

namespace {

// The scales at which dialogs are looked at, in percent of the display's.
constexpr int DOTS_AN_INCH = 96;
constexpr int SCALES[] = {100, 150, 200};

void print(const std::wstring& line) { host().console().print(line + L"\n"); }

std::wstring counted(size_t count, const std::wstring& what) {
    return std::to_wstring(count) + L' ' + what + (count == 1 ? L"" : L"s");
}

// Registered by the plug-in itself.
constexpr wchar_t GRID_CLASS[] = L"GXWND";

bool knowsClass(const std::wstring& name) {
    WNDCLASSEXW info{};
    info.cbSize = sizeof info;
    return equalIgnoringCase(name, GRID_CLASS) ||
           GetClassInfoExW(GetModuleHandleW(nullptr), name.c_str(), &info) != 0;
}

bool isFolder(const std::wstring& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

class DialogCheck {
  public:
    explicit DialogCheck(const ResourceModules& modules) : m_modules(modules) {
        for (const std::wstring& path : modules.missing)
            find(path, isFolder(path) ? L"is a folder: name the modules in it" : L"can't be loaded");
        for (const ResourceModule& module : modules.inPlace)
            for (const auto& [id, text] : module.keyLists) note(module, id, std::wstring(keyListName(text)));
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

    void note(const ResourceModule& module, int id, const std::wstring& name) {
        m_names.emplace(toLower(name), module.name);
        m_ids.emplace(id, name + L" of " + module.name);
    }

    void checkTaken(int id, const std::wstring& name) {
        const auto holder = m_names.find(toLower(name));
        const auto owner = m_ids.find(id);
        if (holder != m_names.end())
            find(name,
                 L"is in " + holder->second + L" already, and one of the two is never found: rename it");
        else if (owner != m_ids.end())
            print(L"note: " + name + L" has the id " + std::to_wstring(id) + L", as has " + owner->second +
                  L"; each module has its own ids");
    }

    void checkList(const ResourceModule& module, int id, const std::wstring& text) {
        const std::wstring name(keyListName(text));
        const auto keys = parseKeyList(std::wstring_view(text).substr(0, KEY_LIST_CHARS));
        if (!keys)
            return find(module.name,
                        L"string " + std::to_wstring(id) + L" is no key list: write NAME,key,key");
        checkTaken(id, name);
        note(module, id, name);
        if (text.size() > KEY_LIST_CHARS)
            find(name, L"has a key list of " + std::to_wstring(text.size()) +
                           L" characters, which is cut at " + std::to_wstring(KEY_LIST_CHARS) +
                           L": shorten the keys");
        const ResourceModule* holder = holderOf(module, id);
        if (!holder) {
            m_withoutTemplate += (m_withoutTemplate.empty() ? L"" : L", ") + name;
            return;
        }
        ++m_dialogs;
        const std::optional<DialogTemplate>& dialog = holder->templates.at(id);
        if (!dialog)
            return find(name, L"template " + std::to_wstring(id) + L" can't be read: compile it anew");
        for (const std::wstring& finding : findMismatches(*keys, *dialog, surroundings(*dialog, 100)))
            find(name, finding);
        checkLook(name, *holder, id, *dialog);
    }

    DialogSurroundings surroundings(const DialogTemplate& dialog, int percent) const {
        const auto measure = std::make_shared<TextMeasure>(dialog, percent);
        const auto fits = [measure](const std::wstring& words, const TextRoom& room) {
            return measure->fits(words, room);
        };
        return {m_iconCaptions, fits, &knowsClass};
    }

    // What shows only when the dialog is opened: at each scale, and with the display's theme and without one.
    // What was found at a smaller scale isn't told again.
    void checkLook(const std::wstring& name, const ResourceModule& holder, int id,
                   const DialogTemplate& dialog) {
        const auto bytes = templateBytes(holder, id);
        std::set<std::wstring> told;
        const auto tell = [&](const std::wstring& where, const std::vector<std::wstring>& findings) {
            for (const std::wstring& finding : findings)
                if (told.insert(finding).second) find(name, where + finding);
        };
        for (const int percent : SCALES) {
            const std::wstring at =
                percent == 100 ? L""
                               : L"at " + std::to_wstring(DOTS_AN_INCH * percent / 100) + L" dots per inch ";
            const std::vector<std::wstring> clipped = findClippedTexts(dialog, surroundings(dialog, percent));
            if (percent == 100)
                told.insert(clipped.begin(), clipped.end());
            else
                tell(at, clipped);
            OpenedDialog opened(holder.handle.get(), bytes, dialog, percent);
            // That nobody registers a window class has been told.
            if (!opened.isOpen()) return;
            tell(at, opened.misplaced());
            if (percent != 100) continue;
            tell(L"", opened.paleTexts());
            opened.removeTheme();
            tell(L"without a theme ", opened.paleTexts());
        }
    }

    // The modules among which key lists and templates of `module` belong together: itself or the product's
    // two.
    template <class Test>
    bool anyPart(const ResourceModule& module, Test&& test) const {
        if (!module.isProducts()) return test(module);
        return std::any_of(m_modules.asked.begin(), m_modules.asked.end(),
                           [&](const ResourceModule& other) { return other.isProducts() && test(other); });
    }

    // The module that has the template of the key list with that id; null where there is none.
    const ResourceModule* holderOf(const ResourceModule& module, int id) const {
        const ResourceModule* found = nullptr;
        anyPart(module, [&](const ResourceModule& part) {
            if (part.templates.contains(id)) found = &part;
            return found != nullptr;
        });
        return found;
    }

    // Where the product's key lists aren't at hand they count as there.
    bool hasKeyList(const ResourceModule& module, int id) const {
        const bool atHand =
            anyPart(module, [](const ResourceModule& part) { return !part.keyLists.empty(); });
        return anyPart(module, [id](const ResourceModule& part) { return part.keyLists.contains(id); }) ||
               (module.isProducts() && !atHand);
    }

    const ResourceModules& m_modules;
    const std::vector<IconCaption> m_iconCaptions = iconCaptions();
    // Where each dialog name, in lower case, and each id was seen first.
    std::map<std::wstring, std::wstring> m_names;
    std::map<int, std::wstring> m_ids;
    std::wstring m_withoutTemplate;
    int m_dialogs = 0;
    int m_found = 0;
};

}  // namespace

int checkDialogs(std::span<const std::wstring> paths) {
    const ResourceModules modules = loadResourceModules(paths);
    DialogCheck check(modules);
    for (const ResourceModule& module : modules.asked) check.check(module);
    print(counted(check.dialogs(), L"dialog") + L" in " + counted(modules.asked.size(), L"module") + L", " +
          std::to_wstring(check.found()) + (check.found() == 1 ? L" mismatch" : L" mismatches"));
    return check.found() ? 1 : 0;
}
