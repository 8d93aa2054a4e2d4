#include "src/platform/base/DialogTemplate.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

// Writes a template as the resource compiler lays it out.
class Bytes {
  public:
    std::vector<uint8_t> data;

    Bytes& word(unsigned value) {
        data.push_back(static_cast<uint8_t>(value));
        data.push_back(static_cast<uint8_t>(value >> 8));
        return *this;
    }
    Bytes& doubleWord(uint32_t value) { return word(value & 0xFFFF).word(value >> 16); }
    Bytes& text(std::string_view ascii) {
        for (const char c : ascii) word(static_cast<unsigned char>(c));
        return word(0);
    }
    Bytes& rectangle(int x, int y, int width, int height) { return word(x).word(y).word(width).word(height); }
    Bytes& align() {
        while (data.size() % 4) data.push_back(0);
        return *this;
    }
};

constexpr uint32_t CHILD_VISIBLE = 0x50000000;

std::vector<uint8_t> extendedDialog() {
    Bytes bytes;
    bytes.doubleWord(0xFFFF0001).doubleWord(0).doubleWord(0).doubleWord(0x80C800C8).word(2);
    bytes.rectangle(0, 0, 200, 60).word(0).word(0).text("Delete");
    bytes.word(8).word(400).word(0x0100).text("MS Shell Dlg");
    bytes.align().doubleWord(0).doubleWord(0x20000).doubleWord(CHILD_VISIBLE | 1).rectangle(-7, 41, 50, 14);
    bytes.doubleWord(1).word(0xFFFF).word(0x80).text("&Yes").word(3).word(0xABCD);
    bytes.data.push_back(0xEF);  // an odd count of the control's own data
    bytes.align().doubleWord(0).doubleWord(0).doubleWord(CHILD_VISIBLE).rectangle(0, 0, 9, 9);
    bytes.doubleWord(0xFFFFFFFF).text("SysListView32").word(0xFFFF).word(77).word(0);
    return bytes.data;
}

TEST(DialogTemplate, readsTheExtendedKind) {
    const auto dialog = parseDialogTemplate(extendedDialog());
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->title, L"Delete");
    EXPECT_EQ(dialog->fontName, L"MS Shell Dlg");
    EXPECT_EQ(dialog->fontPoints, 8);
    EXPECT_EQ(dialog->fontWeight, 400);
    ASSERT_EQ(dialog->controls.size(), 2u);
    const DialogTemplateControl& button = dialog->controls[0];
    EXPECT_EQ(button.id, 1);
    EXPECT_EQ(button.className, L"Button");
    EXPECT_EQ(button.text, L"&Yes");
    EXPECT_EQ(button.style, CHILD_VISIBLE | 1);
    EXPECT_EQ(button.exStyle, 0x20000u);
    EXPECT_EQ(button.x, -7);
    EXPECT_EQ(button.height, 14);
    // Found behind the odd data: the alignment holds. Its text is a resource.
    EXPECT_EQ(dialog->controls[1].id, -1);
    EXPECT_EQ(dialog->controls[1].className, L"SysListView32");
    EXPECT_EQ(dialog->controls[1].text, L"");
}

TEST(DialogTemplate, refusesWhateverEndsTooEarly) {
    const auto whole = extendedDialog();
    for (size_t length = 0; length < whole.size(); ++length) {
        // Of exactly that size, so that a read beyond is seen.
        const std::vector<uint8_t> cut(whole.begin(), whole.begin() + length);
        EXPECT_FALSE(parseDialogTemplate(cut)) << length;
    }
}

TEST(DialogTemplate, refusesAnUnknownVersionAndMoreControlsThanThereAre) {
    auto bytes = extendedDialog();
    bytes[16] = 0xFF;
    EXPECT_FALSE(parseDialogTemplate(bytes));
    bytes = extendedDialog();
    bytes[0] = 2;
    EXPECT_FALSE(parseDialogTemplate(bytes));
}

}  // namespace
