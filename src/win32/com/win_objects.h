#pragma once

#include <windows.h>

#include <cstdint>
#include <oaidl.h>
#include <span>
#include <utility>

#include "ports/automation.h"
#include "win32/com/com_ptr.h"

/// An IDispatch.
class WinObject : public ServedObject {
 public:
    explicit WinObject(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}

    CallResult lookUp(std::wstring_view name, std::int32_t& member) override;
    CallResult invoke(std::int32_t member, Access access, std::span<const Argument> arguments,
                      ServersReply& reply) override;

 private:
    ComPtr<IDispatch> dispatch_;
};

/// The objects that COM knows: the running object table and the class registrations.
class WinObjectServers : public ObjectServers {
 public:
    CallResult running(const std::wstring& progId, std::shared_ptr<ServedObject>& object) override;
    CallResult runningNamed(const std::wstring& beginning,
                            std::shared_ptr<ServedObject>& object) override;
    std::shared_ptr<ServedObject> make(const std::wstring& progId) override;
};
