// simlink/win32/system_carrier.cpp - window messages to the server, and global atoms.
#include "simlink/system_carrier.h"

#include <windows.h>

#include <array>

namespace {

// A simulator that hangs must not take this program with it.
constexpr UINT Longest_Wait = 400;  // milliseconds

class Window_Messages : public Fsc_Carrier {
public:
    bool Available() override {
        Fsc_Msg_ = RegisterWindowMessageA(Fsc_Message_Name);
        Fsc_Wnd_ = FindWindowA(Fsc_Window_Class, nullptr);
        return Fsc_Msg_ != 0 && Fsc_Wnd_ != nullptr;
    }
    Long Send(Long Command, Long Argument) override {
        DWORD_PTR Result = 0;
        const LRESULT Sent = SendMessageTimeoutA(Fsc_Wnd_, Fsc_Msg_, static_cast<WPARAM>(Command),
                                                 Argument, SMTO_NORMAL, Longest_Wait, &Result);
        return Sent != 0 ? static_cast<Long>(Result) : 0;
    }
    std::optional<std::string> Take_Atom(Long Atom) override {
        std::array<char, 255> Name;
        const ATOM Id = static_cast<ATOM>(Atom);
        const UINT Length = GlobalGetAtomNameA(Id, Name.data(), static_cast<int>(Name.size()));
        GlobalDeleteAtom(Id);
        if (Length == 0) return std::nullopt;
        return std::string(Name.data(), Length);
    }

private:
    UINT Fsc_Msg_ = 0;
    HWND Fsc_Wnd_ = nullptr;
};

}  // namespace

Fsc_Carrier& System_Carrier() {
    static Window_Messages Carrier;
    return Carrier;
}
