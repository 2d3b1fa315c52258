// simlink/posix/system_carrier.cpp - a simulator under Wine, reached by a helper that runs there.
#include "simlink/system_carrier.h"

#include <charconv>
#include <chrono>

#include "core/program.h"
#include "platform/files.h"
#include "platform/posix/line_process.h"
#include "platform/program_dir.h"

namespace {

constexpr char Helper_Name[] = "terrafold-fsbridge.exe";
constexpr std::chrono::milliseconds Longest_Wait{500};  // for one answer

// Beside the program, else in the home.
std::string Helper_Path() {
    const std::string Beside = Own_Dir().value_or("") + "\\" + Helper_Name;
    return File_Exists(Beside) ? Beside : App_Path + "\\" + Helper_Name;
}

// The helper's lines are told in simlink/bridge/main.cpp. Without an answer there is no server.
class Bridge : public Fsc_Carrier {
public:
    void Open() override {
        if (!Helper_.Is_Running()) Helper_.Start("\"" + Helper_Path() + "\"");
    }
    void Close() override { Helper_.Stop(); }
    bool Available() override {
        Open();
        return Ask("find") == "1";
    }
    Long Send(Long Command, Long Argument) override {
        const std::string Answer =
            Ask("send " + std::to_string(Command) + " " + std::to_string(Argument));
        Long Result = 0;
        const char* const End = Answer.data() + Answer.size();
        const auto Read = std::from_chars(Answer.data(), End, Result);
        return Read.ec == std::errc() && Read.ptr == End ? Result : 0;
    }
    std::optional<std::string> Take_Atom(Long Atom) override {
        const std::string Answer = Ask("take " + std::to_string(Atom));
        if (!Answer.starts_with('=')) return std::nullopt;
        return Answer.substr(1);
    }

private:
    std::string Ask(const std::string& Line) {
        return Helper_.Ask(Line, Longest_Wait).value_or("");
    }

    Line_Process Helper_;
};

}  // namespace

Fsc_Carrier& System_Carrier() {
    static Bridge Carrier;
    return Carrier;
}
