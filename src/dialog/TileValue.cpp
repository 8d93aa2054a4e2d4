#include "src/dialog/TileValue.h"

#include <utility>

ValueMeaning valueMeaning(std::wstring_view className) {
    static constexpr std::pair<std::wstring_view, ValueMeaning> rows[] = {
        {L"Button", ValueMeaning::buttonState},     {L"SysListView32", ValueMeaning::listControlRow},
        {L"SysTabControl32", ValueMeaning::tab},    {L"ListBox", ValueMeaning::listBoxEntry},
        {L"ComboBox", ValueMeaning::comboBoxEntry},
    };
    for (const auto& [name, meaning] : rows)
        if (name == className) return meaning;
    return ValueMeaning::text;
}
