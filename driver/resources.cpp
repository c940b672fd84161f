#include "driver/resources.h"

#include <psapi.h>
#include <vector>
#include <winternl.h>

#include "driver/winapi.h"

namespace driver {
namespace {

constexpr auto kSystemHandleInformation = static_cast<SYSTEM_INFORMATION_CLASS>(16);

struct SystemHandle {
    ULONG processId;
    BYTE type;
    BYTE flags;
    USHORT value;
    void* object;
    ULONG access;
};

struct SystemHandles {
    ULONG count;
    SystemHandle handles[1];
};

/// Counted one by one: GetProcessHandleCount answers 0 under Wine.
DWORD kernelHandlesOf(DWORD processId) {
    std::vector<char> buffer(1 << 20);
    ULONG needed = 0;
    while (NtQuerySystemInformation(kSystemHandleInformation, buffer.data(),
                                    static_cast<ULONG>(buffer.size()), &needed) < 0) {
        buffer.resize(buffer.size() * 2);
    }
    const auto* all = reinterpret_cast<const SystemHandles*>(buffer.data());
    DWORD count = 0;
    for (ULONG i = 0; i < all->count; ++i) {
        if (all->handles[i].processId == processId) ++count;
    }
    return count;
}

struct GdiEntry {
    ULONGLONG object;
    ULONG owner;
    USHORT unique;
    BYTE type;
    BYTE flags;
    ULONGLONG userPointer;
};

/// The used entries of the process's GDI handle table: GetGuiResources answers 0 under Wine,
/// where each process has a table of its own.
DWORD gdiObjectsIn(HANDLE process) {
    constexpr size_t kGdiTableInPeb = 0xF8;
    constexpr size_t kEntries = 0x4000;
    PROCESS_BASIC_INFORMATION basic{};
    NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic, nullptr);
    const char* table = nullptr;
    ReadProcessMemory(process, reinterpret_cast<const char*>(basic.PebBaseAddress) + kGdiTableInPeb,
                      &table, sizeof table, nullptr);
    std::vector<GdiEntry> entries(kEntries);
    ReadProcessMemory(process, table, entries.data(), kEntries * sizeof(GdiEntry), nullptr);
    DWORD used = 0;
    for (const GdiEntry& entry : entries) used += entry.type != 0;
    return used;
}

DWORD windowsOf(DWORD processId) {
    size_t count = 0;
    for (HWND window : topLevelWindows(processId)) count += 1 + descendants(window).size();
    return static_cast<DWORD>(count);
}

}  // namespace

std::string Resources::describe() const {
    return std::to_string(kernelHandles) + " kernel handles, " + std::to_string(gdiObjects) +
           " GDI objects, " + std::to_string(windows) + " windows, " +
           std::to_string(memoryBytes / 1024) + " KiB";
}

Resources resourcesOf(HANDLE process) {
    const DWORD processId = GetProcessId(process);
    const DWORD gdiObjects = GetGuiResources(process, GR_GDIOBJECTS);
    PROCESS_MEMORY_COUNTERS memory{};
    K32GetProcessMemoryInfo(process, &memory, sizeof memory);
    return {.kernelHandles = kernelHandlesOf(processId),
            .gdiObjects = gdiObjects != 0 ? gdiObjects : gdiObjectsIn(process),
            .windows = windowsOf(processId),
            .memoryBytes = memory.PagefileUsage};
}

}  // namespace driver
