// A drawing as plug-ins reach it: opened tables, blocks and entities are handles into it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/database/Drawing.h"
#include "host/graphics/GsView.h"
#include "src/platform/host/HostDatabase.h"

class Database final : public HostDatabase {
  public:
    Database();
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    cad::Drawing& drawing() { return *m_drawing; }
    // Takes the place of all that there was.
    void setDrawing(cad::Drawing drawing);
    // Reads a file of the host's own kind or, by the ending ".dxf", of the exchange format. Throws
    // std::exception with what is wrong; then the drawing is as it was. Gives what was left out, a line of
    // text or none.
    std::string read(const std::wstring& path, int sharing);

    // The block of that id, in whichever database it is.
    static graphics::FoundBlock find(HostObjectId id);

    int readFile(const wchar_t* path, int sharing) override;
    HostPoint3d extmin() const override { return m_drawing->modelSpace().extents().min; }
    HostPoint3d extmax() const override { return m_drawing->modelSpace().extents().max; }
    HostBlockTable* openBlockTable(int mode) override;
    HostBlockRecord* openBlock(HostObjectId id, int mode) override;
    HostObjectId tableStyle(const wchar_t* name) const override;
    HostViewportRecord* openViewport(const wchar_t* name) override;

  private:
    std::unique_ptr<cad::Drawing> m_drawing;
};

// Reads a whole file. `sharing` as in HostDatabase::readFile. Throws std::exception.
std::string fileBytes(const std::wstring& path, int sharing);
// Writes it whole or not at all: what stood there before stays until all is written. Throws std::exception.
void writeWhole(const std::wstring& path, const std::string& bytes);
