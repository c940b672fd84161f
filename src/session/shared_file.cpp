#include "session/shared_file.h"

#include "common/runtime_error.h"
#include "ports/message_boxes.h"
#include "ports/platform.h"

namespace {

bool changedByOthers(Files& files, const SharedFile& file) {
    return files.isFile(file.path) && file.known != ContentIdentity(files.readBytes(file.path));
}

bool keepOthers(Platform& platform, const SharedFile& file) {
    try {
        platform.files.keepCopy(file.path, file.othersCopy);
        return true;
    } catch (const RuntimeError& error) {
        platform.messageBoxes.warn(
            L"Rien n'est enregistré : ce fichier a été changé par un autre programme, et "
            L"ne peut pas être gardé à côté.\r\n" +
            file.path + L"\r\n" + error.text);
        return false;
    }
}

}  // namespace

bool save(Platform& platform, SharedFile& file, const WriteContent& write) {
    const bool changed = changedByOthers(platform.files, file);
    if (changed && !keepOthers(platform, file)) return false;
    ContentIdentity written;
    platform.files.replace(file.path, [&](const ByteSink& sink) {
        write([&](std::string_view piece) {
            written.add(piece);
            sink(piece);
        });
    });
    file.known = written;
    if (changed) {
        platform.messageBoxes.warn(L"Enregistré. Un autre programme avait changé ce fichier :\r\n" +
                                   file.path + L"\r\nCe qu'il y avait mis est gardé dans :\r\n" +
                                   file.othersCopy);
    }
    return true;
}
