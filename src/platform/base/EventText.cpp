#include "src/platform/base/EventText.h"

namespace {

constexpr std::wstring_view DEFUN = L"\n(defun ";
constexpr std::wstring_view FUNCTION = L"c:OnActionEvent_";
constexpr std::wstring_view NO_ARGUMENTS = L"() \n";

}  // namespace

std::wstring eventFileHeader() {
    return L"; This temp file is used for managing the events of dialog boxes using\n"
           L"; TDL equivilent functions in Tilvanto.\n\n";
}

std::wstring actionFunctionName(std::wstring_view suffix) { return std::wstring(FUNCTION).append(suffix); }

std::wstring actionDefinition(std::wstring_view suffix, std::wstring_view text) {
    std::wstring definition(DEFUN);
    definition += actionFunctionName(suffix);
    definition += NO_ARGUMENTS;
    definition += text;
    definition += L"\n(princ)\n )\n";
    return definition;
}

size_t lastDefinition(std::wstring_view file, size_t end) {
    return file.substr(0, end).rfind(std::wstring(DEFUN).append(FUNCTION));
}

std::optional<std::wstring_view> definitionSuffix(std::wstring_view file, size_t at) {
    const size_t start = at + DEFUN.size() + FUNCTION.size();
    const size_t end = file.find(NO_ARGUMENTS, start);
    if (end == file.npos) return std::nullopt;
    return file.substr(start, end - start);
}

std::wstring eventFilePathIn(std::wstring_view tempFolder, std::wstring_view dialogName) {
    return std::wstring(tempFolder).append(dialogName).append(L"DlgEvents.lsp");
}
