#include "src/shell/EventText.h"

std::wstring eventFileHeader() {
    return L"; This temp file is used for managing the events of dialog boxes using\n"
           L"; TDL equivilent functions in Tilvanto.\n\n";
}

std::wstring actionFunctionName(std::wstring_view suffix) {
    return std::wstring(L"c:OnActionEvent_").append(suffix);
}

std::wstring actionDefinition(std::wstring_view suffix, std::wstring_view text) {
    std::wstring definition = L"\n(defun ";
    definition += actionFunctionName(suffix);
    definition += L"() \n";
    definition += text;
    definition += L"\n(princ)\n )\n";
    return definition;
}

std::wstring eventFilePathIn(std::wstring_view tempFolder, std::wstring_view dialogName) {
    return std::wstring(tempFolder).append(dialogName).append(L"DlgEvents.lsp");
}
