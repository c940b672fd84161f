#include "driver/wait.h"

namespace driver {

void WaitFor(const std::string& what, const std::function<bool()>& condition) {
    if (!Eventually<bool>(true, condition)) throw TimedOut("waited in vain for " + what);
}

}  // namespace driver
