#include "host/frame/HelpPages.h"

#include "host/services/ProgramFolder.h"

namespace fs = std::filesystem;

namespace {

constexpr HelpPage PAGES[] = {
    {L"&First Steps", L"README"},
    {L"For A&uthors", L"docs/for-authors"},
    {L"&Dialog Functions", L"docs/lisp-functions"},
    {L"The Host's &Lisp", L"docs/lisp"},
    {L"D&rawings", L"docs/drawings"},
    {L"&Sessions", L"docs/sessions"},
    {L"Dialogs of &Your Own", L"docs/dialogs"},
    {L"Dialog &Catalog", L"docs/dialog-catalog"},
};

}  // namespace

std::span<const HelpPage> helpPages() { return PAGES; }

fs::path findHelpPage(const HelpPage& page) {
    for (const wchar_t* extension : {L".html", L".md"})
        if (fs::path file = findDelivered(std::wstring(page.file) + extension); !file.empty())
            return file.make_preferred();
    return {};
}
