#pragma once

#include "ports/files.h"

class WinRecordFiles : public RecordFiles {
 public:
    std::unique_ptr<RecordFile> at(const std::wstring& path) override;
};
