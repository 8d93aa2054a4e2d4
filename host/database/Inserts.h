// Blocks that are drawn in other blocks: a drawing has none of these, so each becomes copies of the entities.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "host/database/Drawing.h"

namespace cad {

struct Insert {
    std::u16string block;
    // That of the entities which lie on layer 0 of their block.
    uint32_t layer = 0;
    // The block, its origin at 0, is scaled and then brought to where it is drawn.
    HostVector3d scale{1, 1, 1};
    HostMatrix3d place;
    // How often it stands beside itself, and how far apart.
    int columns = 1, rows = 1;
    double columnStep = 0.0, rowStep = 0.0;
};

// The entity as an affine matrix shows it. Curves become straight pieces, as they are drawn; tables stay
// upright.
Entity placed(const Entity& entity, const HostMatrix3d& matrix);

class Inserts {
  public:
    void add(const Block& into, Insert insert) { m_inserts[into.id()].push_back(std::move(insert)); }
    // Copies all into their blocks. Gives how many were left out, under "INSERT": of blocks that don't exist
    // or contain themselves, and where the drawing would become too large.
    std::map<std::string, int> resolve(Drawing& drawing);

  private:
    void resolve(Drawing& drawing, Block& block, int depth);
    bool copy(const Block& from, const Insert& insert, Block& into);

    std::map<ObjectId, std::vector<Insert>> m_inserts;
    std::set<ObjectId> m_open;
    size_t m_copied = 0;
    int m_leftOut = 0;
};

}  // namespace cad
