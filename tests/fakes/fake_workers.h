#pragma once

#include "ports/search.h"

/// There is no thread to be had, so that all is done at once; or there are threads which wait for a
/// server that does not answer.
struct FakeWorkers : Workers {
    bool hang = false;

    bool start(std::function<void()>) override { return hang; }
};
