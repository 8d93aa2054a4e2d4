#include "host/record/Journal.h"

#include <algorithm>
#include <fstream>

#include "host/documents/Documents.h"
#include "host/record/TileNames.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace fs = std::filesystem;

Journal::Journal(fs::path file, std::wstring head) : m_file(std::move(file)), m_recording(std::move(head)) {
    write();
}

const Journal::Seen* Journal::sessionOf(HWND dialog) const {
    const auto found =
        std::find_if(m_seen.begin(), m_seen.end(), [=](const Seen& seen) { return seen.dialog == dialog; });
    return found == m_seen.end() ? nullptr : &*found;
}

void Journal::dialogSeen(HWND dialog) {
    if (sessionOf(dialog)) return;
    const std::wstring name = documents().nameOfWindow(dialog);
    if (name.empty()) return;
    m_seen.push_back({dialog, m_recording.begin(upperCase(name))});
    write();
}

void Journal::dialogGone(HWND dialog) {
    std::erase_if(m_seen, [=](const Seen& seen) { return seen.dialog == dialog; });
}

Recording::Place Journal::add(HWND dialog, RecordedStep step) {
    const Recording::Place place = m_recording.add(sessionOf(dialog)->session, std::move(step));
    write();
    return place;
}

void Journal::setForm(Recording::Place place, std::wstring form) {
    RecordedStep& step = m_recording.at(place);
    if (step.form == form) return;
    step.form = std::move(form);
    write();
}

// A crash at any moment leaves the old text or the new one.
void Journal::write() {
    try {
        return writeWhole(m_file.wstring(), utf8Text(m_recording.text()));
    } catch (const std::exception&) {
        // It is told once.
    }
    if (!std::exchange(m_failed, true)) {
        host().console().error(L"wexhost: can't write the recording " + m_file.wstring());
        host().fail(1);
    }
}
