#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Sample documents, made once and kept. Files are empty.

/// A tree of 2.5 directories and 25 files per document.
std::filesystem::path documentTree(const std::filesystem::path& below, int documents);

/// One directory with that many documents and nothing else.
std::filesystem::path flatDirectory(const std::filesystem::path& below, int documents);

/// The texts of full paths such as a pass holds, ascending.
std::vector<std::wstring> samplePaths(int count);

class FoundDocuments;
/// The same as found documents.
void fillFound(FoundDocuments& found, int count);
