#pragma once

/// What holds the machine back from sleep.
class Power {
 public:
    virtual ~Power() = default;
    /// Whether the system is to stay awake though nobody uses it; its screen may go dark, and its
    /// user may still send it to sleep.
    virtual void keepAwake(bool awake) = 0;
};

/// While it lives the system doesn't fall asleep by itself.
class Awake {
 public:
    explicit Awake(Power& power) : power_(power) { power_.keepAwake(true); }
    ~Awake() { power_.keepAwake(false); }
    Awake(const Awake&) = delete;
    Awake& operator=(const Awake&) = delete;

 private:
    Power& power_;
};
