#include "host/runner/ComparePictures.h"

#include "host/drive/PictureDifference.h"
#include "host/drive/PictureFile.h"
#include "host/lisp/Error.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

int comparePictures(std::span<const std::wstring> files) {
    int status = 0;
    const auto tell = [&](const std::wstring& line) {
        host().console().error(line);
        status = 1;
    };
    for (; files.size() > 1; files = files.subspan(2)) {
        try {
            const PictureDifference difference = compare(readPicture(files[0]), readPicture(files[1]));
            if (!difference.looksSame()) tell(files[0] + L", " + files[1] + L": " + difference.text());
        } catch (const lisp::Error& error) {
            tell(wideText(error.text()));
        }
    }
    return status;
}
