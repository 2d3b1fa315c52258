// tests/fuzz/fuzz_message_catalogue.cpp - any bytes as message catalogue.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "core/messages.h"
#include "core/program.h"
#include "platform/paths.h"

namespace {

// In memory where the system offers that, for speed.
std::filesystem::path Scratch_File() {
    const std::filesystem::path Memory = "/dev/shm";
    const auto Dir =
        std::filesystem::is_directory(Memory) ? Memory : std::filesystem::temp_directory_path();
    return Dir / ("terrafold_fuzz_" + std::to_string(std::random_device{}()) + ".txt");
}

void Require(bool Holds) {
    if (!Holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    static const std::filesystem::path File = Scratch_File();
    {
        std::ofstream Out(File, std::ios::binary);
        Out.write(reinterpret_cast<const char*>(Data), static_cast<std::streamsize>(Size));
    }
    Program_Reset();
    Msg_File = Program_Path(File).value();
    for (const char* Tongue : {"FR", "US"})
        for (const Int Num : {Int{1}, Int{20}, Int{537}}) {
            Language = Tongue;
            Int Key_Num = 0;
            std::string Title;
            Msg_Fetch(Num, Key_Num, Title);
            Require(Msg_Text.size() <= 255 - 6);
            Require(-9 <= Msg_Icon && Msg_Icon <= 99 && -9 <= Msg_Buttons && Msg_Buttons <= 99);
            Require(!Title.empty());
            Msg_Show_Text(Num, "extra");
        }
    std::filesystem::remove(File);
    return 0;
}
