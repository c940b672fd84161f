#include "driver/resources.h"

#include <psapi.h>

namespace endtoend {

std::string Resources::Describe() const {
    return std::to_string(kernelHandles) + " kernel handles, " + std::to_string(gdiObjects) +
           " GDI objects, " + std::to_string(userObjects) + " USER objects, " +
           std::to_string(privateBytes / 1024) + " KiB private";
}

Resources ResourcesOf(HANDLE process) {
    Resources resources;
    GetProcessHandleCount(process, &resources.kernelHandles);
    resources.gdiObjects = GetGuiResources(process, GR_GDIOBJECTS);
    resources.userObjects = GetGuiResources(process, GR_USEROBJECTS);
    PROCESS_MEMORY_COUNTERS_EX memory{};
    K32GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                            sizeof memory);
    resources.privateBytes = memory.PrivateUsage;
    return resources;
}

}  // namespace endtoend
