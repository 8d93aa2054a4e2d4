#include "src/slides/ImageFunctions.h"

#include <array>
#include <optional>

#include "src/dialog/TileWarnings.h"
#include "src/platform/host/HostServices.h"
#include "src/slides/ImageColor.h"
#include "src/slides/WexSlideImage.h"

namespace {

constexpr wchar_t IMAGE_TILES[] = L"image tiles";
constexpr std::wstring_view BUTTON_CLASS[] = {L"Button"};
constexpr wchar_t NO_IMAGE[] = L"no image is open: wex_start_image opens one";
constexpr wchar_t SLIDE_TYPE[] = L"Slide";
// With the NUL. A file with a longer path isn't found.
constexpr size_t PATH_CHARS = 100;
// For a bad argument and for a file that isn't found.
constexpr int REFUSED = -1;

std::optional<CString> findFile(const CString& name) {
    wchar_t found[PATH_CHARS] = {};
    if (hostFindFile(name.c_str(), found, PATH_CHARS) == HOST_NORMAL) return found;
    warn(WARN_NOT_FOUND, [&] { return L"there is no file " + quoted(name) + L", or its path is too long"; });
    return std::nullopt;
}

// The image tile of a record; null where it is another kind of tile or has no window.
WexSlideImage* imageOf(const CCtrlInfo& record) {
    const bool isImage = record.m_controlType == SLIDE_TYPE && record.m_control && record.m_control->isLive();
    return isImage ? dynamic_cast<WexSlideImage*>(record.m_control) : nullptr;
}

// The image tile of the current dialog, for calls that come by the thousand: its record knows its window,
// which is found much faster than the window among those of the dialog. Null where it is another kind of
// tile, or none.
WexSlideImage* imageOf(const TileAddress& tile) {
    WexDialog* dialog = currentDialog();
    const CCtrlInfo* record = dialog ? dialog->tileFor(tile) : nullptr;
    WexSlideImage* image = record ? imageOf(*record) : nullptr;
    return image ? image : controlAs<WexSlideImage>(tile, IMAGE_TILES);
}

// The record of a tile on which an image is opened: even without a key it gets one.
CCtrlInfo& imageRecord(WexDialog& dialog, const TileAddress& tile) {
    CCtrlInfo* record = dialog.tileFor(tile);
    return record ? *record : *dialog.m_tiles.add(tile.key, tile.controlId());
}

// The next shorts. Nothing where they aren't all there, and the call has its result then: nil where it holds
// nothing more, otherwise that of a bad argument.
template <size_t count>
std::optional<std::array<int, count>> shorts(LispCall& call) {
    std::array<int, count> numbers{};
    for (size_t at = 0; at < count; ++at) {
        const auto number = call.shortNumber();
        if (!number) {
            at == 0 && call.lacksArgument() ? call.retNil() : call.ret(REFUSED);
            return std::nullopt;
        }
        numbers[at] = *number;
    }
    return numbers;
}

void warnUnlessColor(const LispCall& call, int color) {
    if (!isImageColor(color)) call.warnOfArgument([=] { return noSuch(L"color", color) + L": it is black"; });
}

// Nothing is kept of what is drawn on a dialog that doesn't show.
void warnUnlessShown() {
    const WexDialog& dialog = *currentDialog();
    if (!dialog.hasApplied() && !IsWindowVisible(dialog.m_hWnd))
        warn(WARN_NOT_NOW,
             [&] { return spelledName(dialog) + L" doesn't show yet: what is drawn now is lost"; });
}

// "library(member)".
struct SlideName {
    CString library;  // a file
    CString member;
};

// Nothing for a name without a parenthesis.
std::optional<SlideName> slideName(const CString& name) {
    const size_t open = name.find(L'(');
    if (open == CString::npos) return std::nullopt;
    SlideName slide{name.substr(0, open), name.substr(open + 1)};
    if (!slide.member.IsEmpty()) slide.member.pop_back();
    // kept: a name that ends in ".slb" already gets it twice
    if (slide.library.find(L".sld") == CString::npos) slide.library += L".slb";
    return slide;
}

// Until there is a control, the record keeps what it is to show.
void keepSlide(CCtrlInfo& record, const SlideName& slide, const PixelRect& rect) {
    record.m_slideFile = slide.library;
    record.m_auxText = slide.member;
    record.m_slideRect = rect;
}

void showPicture(WexSlideImage& image, const CString& file, bool fit) {
    if (!image.LoadPicture(file, fit))
        warn(WARN_NOT_FOUND, [&] { return quoted(file) + L" is no picture that can be read"; });
}

// Shows what the name says on the open image. False for a file that isn't found.
bool showNamed(CCtrlInfo& record, const CString& name, const PixelRect& rect) {
    std::optional<SlideName> slide = slideName(name);
    if (slide) {
        const auto library = findFile(slide->library);
        if (!library) return false;
        slide->library = *library;
    }
    if (!record.m_control) {
        keepSlide(record, slide.value_or(SlideName{name, L""}), rect);
        return true;
    }
    WexSlideImage* image = imageOf(record);
    if (!image) return true;
    if (slide) {
        warnUnlessShown();
        if (!image->ShowSlide(slide->library, slide->member, rect))
            warnNoSlide(slide->library, slide->member);
        return true;
    }
    const auto picture = findFile(name);
    if (picture) showPicture(*image, *picture, true);
    return picture.has_value();
}

}  // namespace

void startImage(LispCall& call) {
    const TileAddress tile = call.tile();
    if (WexDialog* dialog = dialogToWork()) {
        if (dialog->m_imageTile) warn(WARN_NOT_NOW, L"another image is still open: wex_end_image closes it");
        dialog->m_imageTile = &imageRecord(*dialog, tile);
        if (!dialog->m_hWnd) warnUnlessOfClass(*dialog, tile, BUTTON_CLASS, IMAGE_TILES);
        if (WexSlideImage* image = imageOf(*dialog->m_imageTile))
            image->reset();
        else if (dialog->m_hWnd)
            controlAs<WexSlideImage>(tile, IMAGE_TILES);
    }
    call.retVoid();
}

void vectorImage(LispCall& call) {
    const TileAddress tile = call.tile();
    const auto numbers = shorts<5>(call);
    if (!numbers) return;
    const auto [x1, y1, x2, y2, color] = *numbers;
    warnUnlessColor(call, color);
    if (WexSlideImage* image = imageOf(tile)) {
        warnUnlessShown();
        image->drawVector({x1, y1}, {x2, y2}, imageColor(color));
    }
    call.retVoid();
}

void fillImage(LispCall& call) {
    const TileAddress tile = call.tile();
    WexSlideImage* image = imageOf(tile);
    // kept: this call alone ends without a result where there is no tile
    if (!image && !controlOf(tile)) return call.retNone();
    const auto numbers = shorts<5>(call);
    if (!numbers) return;
    const auto [x, y, width, height, color] = *numbers;
    warnUnlessColor(call, color);
    if (image) {
        warnUnlessShown();
        image->fillRect({x, y, x + width, y + height}, imageColor(color));
    }
    call.retVoid();
}

void slideImage(LispCall& call) {
    std::array<int, 4> numbers{};
    for (int& number : numbers) {
        const auto given = call.shortNumber();
        if (!given) return call.ret(REFUSED);
        number = *given;
    }
    const auto name = call.text();
    if (!name) return call.ret(REFUSED);
    const WexDialog* dialog = dialogToWork();
    if (dialog && !dialog->m_imageTile) warn(WARN_NOT_NOW, NO_IMAGE);
    if (!dialog || !dialog->m_imageTile) return call.retVoid();
    const auto [x, y, width, height] = numbers;
    if (!showNamed(*dialog->m_imageTile, *name, {x, y, x + width, y + height})) return call.ret(REFUSED);
    call.retVoid();
}

void endImage(LispCall& call) {
    if (WexDialog* dialog = dialogToWork()) {
        if (!dialog->m_imageTile) warn(WARN_NOT_NOW, NO_IMAGE);
        WexSlideImage* image = dialog->m_imageTile ? imageOf(*dialog->m_imageTile) : nullptr;
        if (image) image->takeSnapshot();
        dialog->m_imageTile = nullptr;
    }
    call.retVoid();
}

void loadPictureFile(LispCall& call) {
    const TileAddress tile = call.tile();
    WexDialog* dialog = dialogToWork();
    const CCtrlInfo* record = dialog ? dialog->tileFor(tile) : nullptr;
    const auto name = call.text();
    if (call.lacksArgument()) return call.ret(REFUSED);
    // What is no name goes on as a file that can't be read.
    const auto file = name ? findFile(*name) : std::optional<CString>(CString());
    if (!file) return call.ret(REFUSED);
    const bool fit = call.isOneOrNoNumber();
    WexSlideImage* image = record ? imageOf(*record) : nullptr;
    if (image)
        showPicture(*image, *file, fit);
    else
        controlAs<WexSlideImage>(tile, IMAGE_TILES);
    call.retVoid();
}
