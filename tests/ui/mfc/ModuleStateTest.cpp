// The resource search: which module gives a resource, and that no module gives none.
#include "src/platform/mfc/CWinApp.h"
#include "tests/ui/mfc/Support.h"

namespace {

struct ModuleStateTest : MfcTest {
    const HMODULE program = GetModuleHandleW(nullptr);

    static HMODULE findDialog(UINT id) { return AfxFindResourceHandle(MAKEINTRESOURCEW(id), RT_DIALOG); }
};

TEST_F(ModuleStateTest, CurrentModuleComesFirstAndTheChainBehind) {
    EXPECT_EQ(findDialog(1), program);
    EXPECT_EQ(findDialog(99), nullptr);
    AfxGetModuleState()->m_hCurrentResourceHandle = nullptr;
    EXPECT_EQ(findDialog(1), nullptr) << "null must not mean the host's executable";

    AFX_EXTENSION_MODULE record;
    EXPECT_FALSE(AfxInitExtensionModule(record, nullptr));
    EXPECT_FALSE(record.bInitialized);
    ASSERT_TRUE(AfxInitExtensionModule(record, program));
    {
        const CDynLinkLibrary part(record);
        EXPECT_EQ(findDialog(1), program);
        AfxGetModuleState()->m_hCurrentResourceHandle = GetModuleHandleW(L"comctl32.dll");
        EXPECT_EQ(findDialog(1), program);
    }
    EXPECT_EQ(findDialog(1), nullptr);
}

}  // namespace
