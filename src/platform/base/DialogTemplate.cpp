#include "src/platform/base/DialogTemplate.h"

#include <array>

#include "src/platform/base/Text.h"

namespace {

constexpr uint32_t EXTENDED_SIGNATURE = 0xFFFF0001;
constexpr uint16_t ORDINAL_FOLLOWS = 0xFFFF;
constexpr uint16_t FIRST_CLASS_ORDINAL = 0x80;
constexpr uint32_t HAS_FONT = 0x40;  // DS_SETFONT
constexpr std::array CLASS_NAMES = {L"Button", L"Edit", L"Static", L"ListBox", L"ScrollBar", L"ComboBox"};

// Little-endian numbers and texts in sequence; past the end everything reads as 0 and `failed` is set.
class Reader {
  public:
    explicit Reader(std::span<const uint8_t> bytes) : m_bytes(bytes) {}

    bool failed() const { return m_failed; }
    size_t at() const { return m_at; }

    uint8_t byte() {
        if (m_at == m_bytes.size()) m_failed = true;
        return m_failed ? 0 : m_bytes[m_at++];
    }
    uint16_t word() {
        const uint16_t low = byte();
        return static_cast<uint16_t>(low | byte() << 8);
    }
    int number() { return static_cast<int16_t>(word()); }
    uint32_t doubleWord() {
        const uint32_t low = word();
        return low | static_cast<uint32_t>(word()) << 16;
    }
    std::wstring text() { return textFrom(word()); }

    // An ordinal gives an empty text.
    std::wstring textOrOrdinal() {
        const uint16_t first = word();
        if (first != ORDINAL_FOLLOWS) return textFrom(first);
        word();
        return {};
    }

    std::wstring className() {
        const uint16_t first = word();
        if (first == ORDINAL_FOLLOWS) {
            const size_t index = static_cast<size_t>(word()) - FIRST_CLASS_ORDINAL;
            return index < CLASS_NAMES.size() ? CLASS_NAMES[index] : L"";
        }
        const std::wstring name = textFrom(first);
        // Resource compilers write the standard classes in capitals, too.
        for (const wchar_t* standard : CLASS_NAMES)
            if (equalIgnoringCase(name, standard)) return standard;
        return name;
    }

    void skip(size_t count) {
        while (count-- && !m_failed) byte();
    }
    void alignToDoubleWord() { skip(-m_at % 4); }

  private:
    std::wstring textFrom(uint16_t first) {
        std::wstring text;
        for (uint16_t unit = first; unit && !m_failed; unit = word()) text += static_cast<wchar_t>(unit);
        return text;
    }

    std::span<const uint8_t> m_bytes;
    size_t m_at = 0;
    bool m_failed = false;
};

void readRectangle(Reader& reader, DialogTemplateControl& control) {
    control.x = reader.number();
    control.y = reader.number();
    control.width = reader.number();
    control.height = reader.number();
}

DialogTemplateControl readControl(Reader& reader, bool extended) {
    reader.alignToDoubleWord();
    DialogTemplateControl control;
    if (extended) {
        reader.doubleWord();  // the help id
        control.exStyle = reader.doubleWord();
        control.style = reader.doubleWord();
    } else {
        control.style = reader.doubleWord();
        control.exStyle = reader.doubleWord();
    }
    readRectangle(reader, control);
    control.id = extended ? static_cast<int32_t>(reader.doubleWord()) : reader.word();
    control.className = reader.className();
    control.text = reader.textOrOrdinal();
    reader.skip(reader.word());  // data of the control's own
    return control;
}

void readFont(Reader& reader, bool extended, DialogTemplate& result) {
    if (!(result.style & HAS_FONT)) return;
    result.fontPointsAt = reader.at();
    result.fontPoints = reader.word();
    if (extended) {
        result.fontWeight = reader.word();
        result.fontItalic = reader.byte() != 0;
        reader.byte();  // the character set
    }
    result.fontName = reader.text();
}

}  // namespace

std::optional<DialogTemplate> parseDialogTemplate(std::span<const uint8_t> bytes) {
    Reader reader(bytes);
    DialogTemplate result;
    const uint32_t first = reader.doubleWord();
    const bool extended = first == EXTENDED_SIGNATURE;
    // Version 1 is the one extended kind there is.
    if (!extended && first >> 16 == ORDINAL_FOLLOWS) return std::nullopt;
    if (extended) {
        reader.skip(8);  // the help id and the extended style
        result.style = reader.doubleWord();
    } else {
        result.style = first;
        reader.skip(4);  // the extended style
    }
    const unsigned count = reader.word();
    reader.skip(4);  // the place
    result.width = reader.number();
    result.height = reader.number();
    reader.textOrOrdinal();  // the menu
    reader.textOrOrdinal();  // the window class
    result.title = reader.text();
    readFont(reader, extended, result);
    for (unsigned i = 0; i < count && !reader.failed(); ++i)
        result.controls.push_back(readControl(reader, extended));
    if (reader.failed()) return std::nullopt;
    return result;
}
