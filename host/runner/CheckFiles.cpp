#include "host/runner/CheckFiles.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include "host/check/CheckProgram.h"
#include "host/runner/HostFiles.h"
#include "host/runner/HostKnowledge.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

namespace fs = std::filesystem;

fs::path wholePath(const fs::path& path) {
    std::error_code ignored;
    return fs::weakly_canonical(path, ignored);
}

}  // namespace

check::FindSource findSources(std::span<const std::wstring> names) {
    std::map<fs::path, std::u16string> known;
    for (const std::wstring& name : names) known.emplace(wholePath(systemPath(name)), lispText(name));
    return [known](std::u16string_view name) -> std::optional<check::Source> {
        try {
            const auto path = host().lisp().files().find(name);
            if (!path) return std::nullopt;
            const auto at = known.find(wholePath(*path));
            return check::Source{at == known.end() ? lisp::fromPath(*path) : at->second,
                                 host().lisp().fileText(name)};
        } catch (const lisp::Error&) {
            return std::nullopt;
        }
    };
}

int checkFiles(std::span<const std::wstring> files) {
    int status = 0;
    std::vector<check::Source> sources;
    for (const std::wstring& file : files) {
        try {
            sources.push_back({lispText(file), host().lisp().fileText(lispText(file))});
        } catch (const lisp::Error& error) {
            host().console().error(wideText(error.text()));
            status = 1;
        }
    }
    if (sources.empty()) return status;
    const check::Knowledge knowledge = hostKnowledge();
    const check::CheckedProgram checked(std::move(sources), knowledge, findSources(files));
    for (const check::Finding& finding : checked.findings()) {
        host().console().print(wideText(finding.message()) + L"\n");
        if (!finding.isNote) status = 1;
    }
    return status;
}
