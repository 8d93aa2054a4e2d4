#include "src/platform/base/EventText.h"

#include <gtest/gtest.h>

#include "src/shell/ResourceFolder.h"

TEST(EventText, TheDefinitionStandsByteForByte) {
    EXPECT_EQ(actionDefinition(L"add_recadd", L"(wex_done_dialog 1)"),
              L"\n(defun c:OnActionEvent_add_recadd() \n(wex_done_dialog 1)\n(princ)\n )\n");
    EXPECT_EQ(actionDefinition(L"aOnInit", L""), L"\n(defun c:OnActionEvent_aOnInit() \n\n(princ)\n )\n");
    EXPECT_EQ(actionFunctionName(L"add_recOk"), L"c:OnActionEvent_add_recOk");
    EXPECT_EQ(eventFileHeader(),
              L"; This temp file is used for managing the events of dialog boxes using\n"
              L"; TDL equivilent functions in Tilvanto.\n\n");
    EXPECT_EQ(eventFilePathIn(L"C:\\Temp\\", L"Add_Rec"), L"C:\\Temp\\Add_RecDlgEvents.lsp");
}

TEST(ResourceFolder, IsCutBeforeTheLastBackslash) {
    EXPECT_EQ(folderOf(L"C:\\a\\b.pgx"), L"C:\\a\\");
    EXPECT_EQ(folderOf(L"b.pgx"), L"");
    EXPECT_EQ(folderOf(L"\\b.pgx"), L"");
    EXPECT_EQ(folderOf(L""), L"");
}
