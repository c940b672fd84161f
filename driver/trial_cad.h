#pragma once

#include <memory>
#include <string>
#include <vector>

#include "driver/cad_client.h"
#include "driver/process.h"
#include "driver/sandbox.h"

namespace driver {

/// A trial CAD session, with its journal in the sandbox.
class TrialCad {
 public:
    explicit TrialCad(const Sandbox& sandbox) : sandbox_(sandbox) {}

    /// Starts it with these command-line options and waits until programs can attach to it.
    void start(const std::vector<std::string>& options = {});
    /// Closes its window, and waits for its end.
    void close();

    /// Ends it as a crash would.
    void kill() const { process_->kill(); }

    HWND window() const;

    /// The session itself, for what programs other than ours do with it.
    ComPtr<IDispatch> application() const { return sessionOfProcess(process_->id()); }

    /// All calls received so far, as the journal has them.
    std::vector<std::string> calls() const;
    /// How many of them contain this text.
    int countOf(const std::string& text) const;

 private:
    std::filesystem::path journal() const { return sandbox_.directory() / "journal.txt"; }

    const Sandbox& sandbox_;
    std::unique_ptr<Process> process_;
};

}  // namespace driver
