#pragma once

#include <span>
#include <string>

#include "ports/file_dialogs.h"
#include "ports/message_boxes.h"

/// That these keys belong to another program, and that none is active therefore.
MessageBoxContent takenKeysBox(std::span<const std::wstring> keys);

/// Where the report of a list is to go: beside the list, unless the user has a better place.
SaveQuestion reportQuestion(const std::wstring& listFile);

/// That there is no report, and why.
MessageBoxContent reportNotWrittenBox(const std::wstring& reason);
