#include "driver/tooltip.h"

#include <commctrl.h>
#include <cstddef>
#include <stdexcept>

#include "driver/text.h"
#include "driver/winapi.h"

namespace driver {
namespace {

constexpr size_t kLongest = 512;  // characters

/// What TTM_GETTEXT fills, as one block of the other process's memory.
struct Request {
    TOOLINFOW tool;
    wchar_t text[kLongest];
};

/// Memory in another process, for messages whose pointers Windows does not translate.
class RemoteBlock {
 public:
    explicit RemoteBlock(DWORD processId)
        : process_(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE,
                               processId)),
          address_(static_cast<std::byte*>(VirtualAllocEx(
              process_, nullptr, sizeof(Request), MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE))) {
        if (!address_) throw std::runtime_error("no memory in the other process");
    }
    ~RemoteBlock() {
        VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }
    RemoteBlock(const RemoteBlock&) = delete;
    RemoteBlock& operator=(const RemoteBlock&) = delete;

    std::byte* address() const { return address_; }
    void put(const Request& request) const {
        WriteProcessMemory(process_, address_, &request, sizeof request, nullptr);
    }
    void get(Request& request) const {
        ReadProcessMemory(process_, address_, &request, sizeof request, nullptr);
    }

 private:
    HANDLE process_;
    std::byte* address_;
};

std::string toolText(HWND tooltip, HWND control, const RemoteBlock& block) {
    Request request{};
    request.tool.cbSize = sizeof request.tool;
    request.tool.uFlags = TTF_IDISHWND;
    request.tool.hwnd = GetAncestor(control, GA_ROOT);
    request.tool.uId = reinterpret_cast<UINT_PTR>(control);
    request.tool.lpszText = reinterpret_cast<wchar_t*>(block.address() + offsetof(Request, text));
    block.put(request);
    send(tooltip, TTM_GETTEXTW, kLongest, reinterpret_cast<LPARAM>(block.address()));
    block.get(request);
    return utf8(request.text);
}

}  // namespace

std::string toolTipOf(HWND control) {
    DWORD processId = 0;
    GetWindowThreadProcessId(control, &processId);
    const RemoteBlock block(processId);
    for (HWND window : topLevelWindows(processId)) {
        if (classOf(window) != TOOLTIPS_CLASSA) continue;
        if (std::string text = toolText(window, control, block); !text.empty()) return text;
    }
    return {};
}

}  // namespace driver
