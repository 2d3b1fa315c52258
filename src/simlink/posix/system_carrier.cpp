// simlink/posix/system_carrier.cpp - the simulator runs on Windows only.
#include "simlink/system_carrier.h"

namespace {

class No_Server : public Fsc_Carrier {
public:
    bool Available() override { return false; }
    Long Send(Long, Long) override { return 0; }
    std::optional<std::string> Take_Atom(Long) override { return std::nullopt; }
};

}  // namespace

Fsc_Carrier& System_Carrier() {
    static No_Server Carrier;
    return Carrier;
}
