// The exports of HostDatabase.h and HostGraphics.h.
#include <cstring>

#include "host/documents/Documents.h"
#include "host/documents/DrawingWindow.h"
#include "host/documents/OpenedObjects.h"
#include "host/graphics/GsManager.h"
#include "host/lisp/Text.h"
#include "host/services/Texts.h"
#include "src/platform/host/HostDatabase.h"
#include "src/platform/host/HostLisp.h"

HostDatabase* hostWorkingDatabase() {
    HostDocument* document = documents().current();
    return document ? &document->database : nullptr;
}

// A database beside the documents, as all are that a plug-in makes. The default drawing is what each database
// begins with.
HostDatabase* hostNewDatabase(bool, bool) { return new Database; }

void hostDeleteDatabase(HostDatabase* database) { delete static_cast<Database*>(database); }

HostTable* hostNewTable() { return opened::newTable(); }

HostBlockRecord* hostNewBlockRecord() { return opened::newBlock(); }

int hostVportsToRecords() {
    HostDocument* document = documents().current();
    if (!document) return HOST_ERROR;
    if (DrawingWindow* window = DrawingWindow::current()) window->tellViewport(document->database.drawing());
    return HOST_NORMAL;
}

int hostGetVar(const wchar_t* name, HostValue* result) {
    HostDocument* document = documents().current();
    if (!document || !result) return HOST_ERROR;
    const auto& variables = document->database.drawing().variables();
    const auto found = variables.find(lisp::upperCase(lispText(name)));
    if (found == variables.end()) return HOST_ERROR;
    if (const auto* number = std::get_if<int16_t>(&found->second)) {
        result->type = HV_SHORT;
        result->value.shortValue = *number;
    } else if (const auto* real = std::get_if<double>(&found->second)) {
        result->type = HV_REAL;
        result->value.realValue = *real;
    } else if (const auto* point = std::get_if<HostPoint3d>(&found->second)) {
        result->type = HV_POINT;
        result->value.pointValue[0] = point->x;
        result->value.pointValue[1] = point->y;
        result->value.pointValue[2] = point->z;
    } else {
        result->type = HV_STRING;
        hostNewString(wideText(std::get<std::u16string>(found->second)).c_str(), &result->value.stringValue);
    }
    return HOST_NORMAL;
}

HostGsManager* hostGetGsManager(void*) {
    static auto& manager = *new graphics::GsManager(&Database::find);
    return &manager;
}

HostGsView* hostGetCurrent3dView(int viewport) {
    HostDocument* document = documents().current();
    DrawingWindow* window = DrawingWindow::current();
    if (!document || !window) return nullptr;
    // One viewport is on the screen: that of the current number.
    const auto& variables = document->database.drawing().variables();
    const auto current = variables.find(u"CVPORT");
    const auto* number = current == variables.end() ? nullptr : std::get_if<int16_t>(&current->second);
    return number && *number == viewport ? &window->view() : nullptr;
}
