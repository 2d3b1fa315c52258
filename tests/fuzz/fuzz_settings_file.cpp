// tests/fuzz/fuzz_settings_file.cpp - INI files out of arbitrary bytes.
//
// The first line holds a value, the rest is the file. Besides staying alive, what is written
// must be read back, once written must stay, and must not change another setting.
#include <algorithm>
#include <string_view>

#include "fuzz/scratch.h"
#include "platform/settings_file.h"

namespace {

constexpr std::string_view Sections[] = {"Terrafold", "ERR"};
constexpr std::string_view Keys[] = {"Language", "00014"};

void Check_Write(std::string_view File, std::string_view Section, std::string_view Key,
                 std::string_view Value) {
    const auto New = Text_With_Setting(File, Section, Key, Value);
    if (!New) return;
    Need(Setting_In_Text(*New, Section, Key) == Value.substr(0, 255));
    Need(Text_With_Setting(*New, Section, Key, Value) == New);
    Need(New->size() >= File.size() || Setting_In_Text(File, Section, Key).has_value());
    for (const std::string_view Other_Section : Sections)
        for (const std::string_view Other : Keys)
            if (Other_Section != Section || Other != Key)
                Need(Setting_In_Text(*New, Other_Section, Other) ==
                     Setting_In_Text(File, Other_Section, Other));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    const std::string_view Input(reinterpret_cast<const char*>(Data), Size);
    const std::string_view Value = Input.substr(0, Input.find('\n'));
    const std::string_view File = Input.substr(std::min(Value.size() + 1, Size));
    for (const std::string_view Section : Sections)
        for (const std::string_view Key : Keys) Check_Write(File, Section, Key, Value);
    return 0;
}
