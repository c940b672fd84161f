#include "pickers/directory_listing.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "common/text.h"
#include "ports/files.h"

namespace {

/// Puts names in ascending order regardless of case, and by case where nothing else differs.
class NameOrder {
 public:
    void add(std::wstring_view name) { keys_.push_back({upperCase(name), name}); }

    /// The names in order, each by its number, counted from 0 as they were added.
    std::vector<std::size_t> sorted() const {
        std::vector<std::size_t> places(keys_.size());
        std::iota(places.begin(), places.end(), std::size_t{0});
        std::sort(places.begin(), places.end(),
                  [this](std::size_t a, std::size_t b) { return keys_[a] < keys_[b]; });
        return places;
    }

 private:
    /// In capitals, then as it is.
    std::vector<std::pair<std::wstring, std::wstring_view>> keys_;
};

const std::wstring& nameOf(const std::wstring& file) { return file; }
const std::wstring& nameOf(const Subdirectory& subdirectory) { return subdirectory.name; }

template <class Item>
void sortByName(std::vector<Item>& items) {
    NameOrder order;
    for (const Item& item : items) order.add(nameOf(item));
    std::vector<Item> sorted;
    sorted.reserve(items.size());
    for (const std::size_t place : order.sorted()) sorted.push_back(std::move(items[place]));
    items = std::move(sorted);
}

}  // namespace

DirectoryContents listContents(Files& files, const std::wstring& directory,
                               const FileFilter& wanted) {
    DirectoryContents contents;
    files.visit(directory, [&](const DirectoryEntry& entry) {
        if (entry.isLeftOut) return;
        if (entry.isDirectory) {
            contents.subdirectories.push_back({std::wstring(entry.name), entry.isLink});
        } else if (wanted(entry.name)) {
            contents.files.emplace_back(entry.name);
        }
    });
    sortByName(contents.files);
    sortByName(contents.subdirectories);
    return contents;
}
