// A compiled dialog template as plain data. Portable.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// Positions and sizes are in dialog units.
struct DialogTemplateControl {
    int id = 0;
    uint32_t style = 0;
    uint32_t exStyle = 0;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::wstring className;  // the six standard classes by their names, "Button" and so on
    std::wstring text;       // empty where the control names a resource instead
};

struct DialogTemplate {
    uint32_t style = 0;
    int width = 0;
    int height = 0;
    std::wstring title;
    std::wstring fontName;  // empty where the template sets no font
    int fontPoints = 0;
    size_t fontPointsAt = 0;  // where the two bytes of the font's size stand; 0 where no font is set
    int fontWeight = 0;       // 0: the font's own
    bool fontItalic = false;
    std::vector<DialogTemplateControl> controls;  // in tab order
};

// Reads both kinds of template, the older and the extended one. Nothing where the bytes end too early or name
// an unknown kind.
std::optional<DialogTemplate> parseDialogTemplate(std::span<const uint8_t> bytes);
