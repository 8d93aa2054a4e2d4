#include "src/platform/mfc/CPrintDialog.h"

#include "src/platform/mfc/RedrawHold.h"
#include "src/platform/mfc/SystemFunction.h"
#include "src/platform/mfc/ThemeContext.h"

namespace {

template <class Record>
class Locked {
  public:
    explicit Locked(HGLOBAL memory)
        : m_memory(memory), m_record(memory ? static_cast<const Record*>(GlobalLock(memory)) : nullptr) {}
    ~Locked() {
        if (m_record) GlobalUnlock(m_memory);
    }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

    const Record* get() const { return m_record; }

  private:
    HGLOBAL m_memory;
    const Record* m_record;
};

}  // namespace

CPrintDialog::~CPrintDialog() {
    if (m_names) GlobalFree(m_names);
    if (m_settings) GlobalFree(m_settings);
}

bool CPrintDialog::DoModal(HWND owner) {
    const auto show = systemFunction<decltype(PrintDlgW)>(L"comdlg32.dll", "PrintDlgW");
    if (!show) return false;
    releaseRedraw();
    const ThemeContext themed;
    PRINTDLGW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.Flags = m_flags;
    const bool chosen = show(&request);
    m_names = request.hDevNames;
    m_settings = request.hDevMode;
    return chosen;
}

HDC CPrintDialog::CreatePrinterDC() const {
    const Locked<DEVNAMES> names(m_names);
    const Locked<DEVMODEW> settings(m_settings);
    if (!names.get()) return nullptr;
    const auto* text = reinterpret_cast<const wchar_t*>(names.get());
    return CreateDCW(text + names.get()->wDriverOffset, text + names.get()->wDeviceOffset, nullptr,
                     settings.get());
}
