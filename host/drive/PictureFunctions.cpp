#include "host/drive/PictureFunctions.h"

#include <filesystem>

#include "host/drive/PictureDifference.h"
#include "host/drive/PictureFile.h"
#include "host/drive/Shot.h"
#include "host/drive/Tile.h"
#include "host/lisp/Interpreter.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

namespace fs = std::filesystem;
using lisp::Call;
using lisp::Value;

PictureChoices g_choices;

Value pathText(Call& call, const fs::path& path) { return call.lisp.string(lispText(path.wstring())); }

fs::path within(const fs::path& folder, const fs::path& name) {
    return name.is_relative() ? folder / name : name;
}

void makeFolderOf(const fs::path& file) {
    std::error_code ignored;
    fs::create_directories(file.parent_path(), ignored);
}

// The path of the picture that was taken.
Value photographed(Call& call, HWND window) {
    const fs::path path = within(g_choices.folder, call.lisp.files().resolve(call.text(0)));
    makeFolderOf(path);
    writePicture(pictureOf(window), path.wstring());
    return pathText(call, path);
}

// (ui_shot "file.png"): of the dialog.
Value shot(Call& call) { return photographed(call, runningDialog()); }

// (draw_shot "file.png"): of the main frame with the drawing.
Value drawShot(Call& call) {
    const HWND frame = host().completeMainFrame();
    RedrawWindow(frame, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return photographed(call, frame);
}

// An approved picture, and what is left beside it where the dialog looks otherwise.
class ApprovedPicture {
  public:
    explicit ApprovedPicture(fs::path path) : m_path(std::move(path)) {}

    const fs::path& path() const { return m_path; }
    bool exists() const { return fs::exists(m_path); }
    PictureDifference differenceOf(const Picture& taken) const {
        return compare(readPicture(m_path.wstring()), taken);
    }

    // Of a picture that looks the same the file is left alone.
    void take(const Picture& taken) const {
        forget();
        if (exists() && differenceOf(taken).looksSame()) return;
        makeFolderOf(m_path);
        writePicture(taken, m_path.wstring());
        host().console().print(L"[approved] " + m_path.wstring() + L"\n");
    }
    void forget() const {
        std::error_code ignored;
        fs::remove(beside(L".new"), ignored);
        fs::remove(beside(L".difference"), ignored);
    }

    [[noreturn]] void failMissing(const Picture& taken) const {
        makeFolderOf(m_path);
        writePicture(taken, beside(L".new").wstring());
        throw lisp::Error(lispText(L"there is no approved picture " + m_path.wstring() + L"\n    " +
                                   beside(L".new").wstring() +
                                   L" is how the dialog looks; wexhost --approve takes it"));
    }
    [[noreturn]] void failDifferent(const Picture& taken, const PictureDifference& difference) const {
        writePicture(taken, beside(L".new").wstring());
        writePicture(markDifferences(readPicture(m_path.wstring()), taken), beside(L".difference").wstring());
        throw lisp::Error(lispText(L"the dialog doesn't look as approved: " + difference.text() + L"\n    " +
                                   m_path.wstring() + L" is approved, " + beside(L".new").wstring() +
                                   L" is new, and " + beside(L".difference").wstring() +
                                   L" shows where; wexhost --approve takes the new one"));
    }

  private:
    fs::path beside(const wchar_t* what) const {
        fs::path path = m_path;
        return path.replace_filename(m_path.stem().wstring() + what + m_path.extension().wstring());
    }

    fs::path m_path;
};

// Where the call stands in a file, approved pictures lie beside that.
fs::path folderOfProgram(Call& call) {
    const auto file = call.lisp.files().find(call.lisp.place().file);
    return file ? file->parent_path() : fs::path();
}

// (ui_same_shot "file.png")
Value sameShot(Call& call) {
    const ApprovedPicture approved(within(folderOfProgram(call), call.lisp.files().resolve(call.text(0))));
    const Picture taken = pictureOf(runningDialog());
    if (g_choices.approves) {
        approved.take(taken);
    } else if (!approved.exists()) {
        approved.failMissing(taken);
    } else {
        const PictureDifference difference = approved.differenceOf(taken);
        if (!difference.looksSame()) approved.failDifferent(taken, difference);
        approved.forget();
    }
    return pathText(call, approved.path());
}

constexpr UiFunction FUNCTIONS[] = {
    {u"ui_shot", &shot, 1, 1}, {u"draw_shot", &drawShot, 1, 1}, {u"ui_same_shot", &sameShot, 1, 1}};

}  // namespace

void setPictureChoices(PictureChoices choices) { g_choices = std::move(choices); }

std::span<const UiFunction> pictureFunctions() { return FUNCTIONS; }
