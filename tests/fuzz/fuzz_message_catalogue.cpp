// tests/fuzz/fuzz_message_catalogue.cpp - any bytes as message catalogue.
#include "core/messages.h"
#include "core/program.h"
#include "fuzz/scratch.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    Program_Reset();
    Msg_File = Scratch_File(Data, Size);
    for (const char* Tongue : {"FR", "US"})
        for (const Int Num : {Int{1}, Int{20}, Int{537}}) {
            Language = Tongue;
            Int Key_Num = 0;
            std::string Title;
            Msg_Fetch(Num, Key_Num, Title);
            Need(Msg_Text.size() <= 255 - 6);
            Need(-9 <= Msg_Icon && Msg_Icon <= 99 && -9 <= Msg_Buttons && Msg_Buttons <= 99);
            Need(!Title.empty());
            Msg_Show_Text(Num, "extra");
        }
    return 0;
}
