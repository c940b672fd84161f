#include "searchfolders/folder_list.h"

void splitFolders(std::wstring_view folders, Configuration& configuration) {
    if (folders.empty()) return;
    int j = 1;
    std::size_t end = 0;
    while ((end = folders.find(L';')) != std::wstring_view::npos) {
        configuration[j++] = folders.substr(0, end);
        folders.remove_prefix(end + 1);
    }
    configuration[j] = folders;
}

std::wstring joinFolders(const Configuration& configuration) {
    std::wstring folders = configuration[1];
    for (int j = 2; !configuration[j].empty(); ++j) folders += L';' + configuration[j];
    return folders;
}
