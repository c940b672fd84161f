#include "driver/wait.h"

namespace driver {

void waitFor(const std::string& what, const std::function<bool()>& condition) {
    if (!eventually<bool>(true, condition)) throw TimedOut("waited in vain for " + what);
}

}  // namespace driver
