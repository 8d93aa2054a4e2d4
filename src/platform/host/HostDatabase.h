// The host's drawing database as a plug-in reaches it. Objects cross as abstract classes and belong to the
// host; what was opened is closed, after which its pointer is dead. Calls with a result of `int` give
// HOST_NORMAL or another status.
#pragma once

#include <cstdint>

#include "src/platform/host/HostApi.h"
#include "src/platform/host/HostGeometry.h"
#include "src/platform/host/HostGraphics.h"

class HostEntity {
  public:
    virtual bool isKindOf(const wchar_t* className) const = 0;
    // The box around what it draws; fails where it draws nothing that has a place.
    virtual int getGeomExtents(HostExtents* extents) const = 0;
    virtual void close() = 0;

  protected:
    ~HostEntity() = default;
};

class HostMText : public HostEntity {
  public:
    static constexpr const wchar_t* className = L"HostMText";
    virtual const wchar_t* contents() const = 0;

  protected:
    ~HostMText() = default;
};

class HostTable : public HostEntity {
  public:
    static constexpr const wchar_t* className = L"HostTable";
    virtual void setTableStyle(HostObjectId style) = 0;
    virtual void setSize(int rows, int columns) = 0;
    virtual int numRows() const = 0;
    virtual int numColumns() const = 0;
    // Gives rows and columns the sizes of the style.
    virtual void generateLayout() = 0;
    virtual int setTextString(int row, int column, const wchar_t* text) = 0;

  protected:
    ~HostTable() = default;
};

// A block: a named list of entities. It is drawn as all of them.
class HostBlockRecord : public HostDrawable {
  public:
    virtual const wchar_t* name() const = 0;
    virtual int setName(const wchar_t* name) = 0;
    virtual void setOrigin(const HostPoint3d& origin) = 0;
    // Takes over an entity that was made by hostNew…, and may have been closed already; its pointer is dead
    // then, and otherwise good until it is closed. One that was closed goes also where it isn't taken.
    virtual int appendEntity(HostEntity* entity) = 0;
    virtual int entityCount() const = 0;
    // Null where the entity can't be opened.
    virtual HostEntity* openEntity(int index) = 0;
    virtual void close() = 0;

  protected:
    ~HostBlockRecord() override = default;
};

class HostBlockTable {
  public:
    virtual bool has(const wchar_t* name) const = 0;
    // 0 where there is no such block.
    virtual HostObjectId getAt(const wchar_t* name) const = 0;
    virtual int blockCount() const = 0;
    virtual HostObjectId blockAt(int index) const = 0;
    // Takes over a record of hostNewBlockRecord, which stays open. Fails while the table isn't open for
    // writing, and for a name that is empty or taken.
    virtual int add(HostBlockRecord* record) = 0;
    virtual void close() = 0;

  protected:
    ~HostBlockTable() = default;
};

class HostViewportRecord {
  public:
    virtual double height() const = 0;
    virtual double width() const = 0;
    virtual HostPoint3d target() const = 0;
    virtual HostVector3d viewDirection() const = 0;
    virtual double viewTwist() const = 0;
    virtual void close() = 0;

  protected:
    ~HostViewportRecord() = default;
};

enum HostOpenMode : int { HOST_FOR_READ = 0, HOST_FOR_WRITE = 1 };

// How a drawing file is opened by readFile: 1 and 2 let others write to it meanwhile, 3 doesn't.
enum HostFileSharing : int { HOST_SHARE_READ = 1, HOST_SHARE_READ_WRITE = 2, HOST_SHARE_NONE = 3 };

class HostDatabase {
  public:
    // Reads a drawing file of the host, or one in the drawing exchange format (by its ending). A failure
    // leaves the database empty.
    virtual int readFile(const wchar_t* path, int sharing) = 0;
    virtual HostPoint3d extmin() const = 0;
    virtual HostPoint3d extmax() const = 0;
    // Null while the table is open for writing, and for writing also while it is open for reading.
    virtual HostBlockTable* openBlockTable(int mode) = 0;
    virtual HostBlockRecord* openBlock(HostObjectId id, int mode) = 0;
    // 0 where no table style bears that name.
    virtual HostObjectId tableStyle(const wchar_t* name) const = 0;
    // Null where there is no viewport of that name; the one on the screen is "*Active".
    virtual HostViewportRecord* openViewport(const wchar_t* name) = 0;

  protected:
    ~HostDatabase() = default;
};

// The database of the current document; null where none is open.
HOST_API HostDatabase* hostWorkingDatabase();
// A database of the caller's own, given back by hostDeleteDatabase. `defaultDrawing` gives it what an empty
// drawing has, `noDocument` says that it stands beside the documents.
HOST_API HostDatabase* hostNewDatabase(bool defaultDrawing, bool noDocument);
HOST_API void hostDeleteDatabase(HostDatabase* database);
// In no drawing yet; a record that is closed before it is added to one goes.
HOST_API HostTable* hostNewTable();
HOST_API HostBlockRecord* hostNewBlockRecord();
// Brings the viewport table up to date with what the screen shows.
HOST_API int hostVportsToRecords();
// A variable of the current drawing, into a node of the caller's: HV_SHORT, HV_REAL, HV_STRING (released with
// the node by hostRelRb) or HV_POINT.
HOST_API int hostGetVar(const wchar_t* name, HostValue* result);
