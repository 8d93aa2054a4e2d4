#include "host/frame/HelpPages.h"

#include "host/services/ProgramFolder.h"

namespace fs = std::filesystem;

namespace {

constexpr HelpPage PAGES[] = {
    {L"&First Steps", L"README"},
    {L"&Dialog Functions", L"docs/lisp-functions"},
    {L"The Host's &Lisp", L"docs/lisp"},
    {L"D&rawings", L"docs/drawings"},
    {L"&Sessions", L"docs/sessions"},
    {L"Dialogs of &Your Own", L"docs/dialogs"},
    {L"Dialog &Catalog", L"docs/dialog-catalog"},
};

// A build lies so many folders below its sources.
constexpr int MOST_LEVELS = 3;

}  // namespace

std::span<const HelpPage> helpPages() { return PAGES; }

fs::path findHelpPage(const HelpPage& page) {
    fs::path folder = programFolder();
    std::error_code ignored;
    for (int level = 0; level <= MOST_LEVELS; ++level, folder = folder.parent_path())
        for (const wchar_t* extension : {L".html", L".md"}) {
            fs::path file = folder / page.file;
            file += extension;
            if (fs::is_regular_file(file, ignored)) return file.make_preferred();
        }
    return {};
}
