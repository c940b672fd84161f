#pragma once

/// Marks that a command did what takes long: called another program, or searched. What a person
/// pressed before its end was not meant as another command.
class LongWork {
 public:
    LongWork() { done_ = true; }

    /// Whether there was any since this was asked last.
    static bool takeDone() {
        const bool done = done_;
        done_ = false;
        return done;
    }

 private:
    inline static bool done_ = false;
};
