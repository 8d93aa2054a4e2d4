// A drawing: layers, blocks of entities, table styles, variables. Names are told apart without regard to
// letter case.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "host/database/Entity.h"

namespace cad {

using ObjectId = uint64_t;

inline constexpr const char16_t* MODEL_SPACE = u"*Model_Space";
inline constexpr const char16_t* PAPER_SPACE = u"*Paper_Space";

struct Layer {
    std::u16string name;
    ColorIndex color = WHITE;
    bool visible = true;
};

class Block {
  public:
    Block(ObjectId id, std::u16string name) : m_id(id), m_name(std::move(name)) {}

    ObjectId id() const { return m_id; }
    const std::u16string& name() const { return m_name; }
    HostPoint3d origin;

    const std::vector<Entity>& entities() const { return m_entities; }
    Entity& add(Entity entity);
    // The entity to change. Throws std::out_of_range.
    Entity& change(size_t index);
    void remove(size_t index);
    void clear();
    // Counts as a change: something that the block's picture depends on is another.
    void touch() { ++m_revision; }
    // Grows with each change, so that what was made from the block can tell that it is old.
    uint64_t revision() const { return m_revision; }
    // Around all entities; empty where none has a place.
    const HostExtents& extents() const;

  private:
    ObjectId m_id;
    std::u16string m_name;
    std::vector<Entity> m_entities;
    uint64_t m_revision = 0;
    mutable HostExtents m_extents;
    mutable uint64_t m_extentsRevision = ~uint64_t{0};
};

struct TableStyle {
    ObjectId id = 0;
    std::u16string name;
    double textHeight = 0.18;
    double rowHeight = 0.36;
    double columnWidth = 2.5;
};

// What the active viewport shows.
struct ViewportState {
    double height = 10.0;
    double width = 10.0;
    HostPoint3d target;
    HostVector3d direction{0, 0, 1};
    // From upright, against the clock.
    double twist = 0.0;
};

using Variable = std::variant<int16_t, double, HostPoint3d, std::u16string>;

class Drawing {
  public:
    // Layer "0", model space, paper space, the table style "Standard", and the variables that each drawing
    // has.
    Drawing();

    Block& modelSpace() { return *m_blocks.front(); }
    const Block& modelSpace() const { return *m_blocks.front(); }
    const std::vector<std::unique_ptr<Block>>& blocks() const { return m_blocks; }
    // Null where there is none.
    Block* block(std::u16string_view name) const;
    Block* block(ObjectId id) const;
    // Throws std::invalid_argument for a name that is empty or taken.
    Block& addBlock(std::u16string name);

    const std::vector<Layer>& layers() const { return m_layers; }
    Layer& layer(uint32_t number) { return m_layers.at(number); }
    const Layer& layer(uint32_t number) const { return m_layers.at(number); }
    // The number of the layer of that name, which is made where it doesn't exist.
    uint32_t layerNamed(std::u16string_view name);
    // What an entity is drawn with, 0x00RRGGBB.
    uint32_t rgbOf(const Entity& entity) const;

    const std::vector<TableStyle>& tableStyles() const { return m_tableStyles; }
    const TableStyle* tableStyle(std::u16string_view name) const;
    const TableStyle* tableStyle(ObjectId id) const;
    // Takes the place of one of the same name.
    TableStyle& addTableStyle(TableStyle style);
    // Gives rows and columns of the table the sizes of its style.
    void layOut(Table& table) const;

    ViewportState& viewport() { return m_viewport; }
    const ViewportState& viewport() const { return m_viewport; }
    // By name in upper case.
    std::map<std::u16string, Variable>& variables() { return m_variables; }
    const std::map<std::u16string, Variable>& variables() const { return m_variables; }

  private:
    std::vector<std::unique_ptr<Block>> m_blocks;
    std::map<std::u16string, size_t> m_blockNumbers;
    std::vector<Layer> m_layers;
    std::vector<TableStyle> m_tableStyles;
    std::map<std::u16string, Variable> m_variables;
    ViewportState m_viewport;
};

}  // namespace cad
