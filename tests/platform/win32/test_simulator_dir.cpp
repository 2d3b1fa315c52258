// tests/platform/win32/test_simulator_dir.cpp - finding the simulator in the registry.
#include "platform/simulator_dir.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "support/environment.h"

namespace {

constexpr const wchar_t* Stand_In_Key = L"Software\\Terrafold test";
constexpr const wchar_t* Simulator_Key =
    L"SOFTWARE\\Microsoft\\Microsoft Games\\Flight Simulator\\9.0";

// A key of the user stands in for that of the machine, which the tests leave alone.
class Registered_Simulator : public testing::Test {
protected:
    Registered_Simulator() {
        RegCreateKeyExW(HKEY_CURRENT_USER, Stand_In_Key, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                        &Machine_, nullptr);
        EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, Machine_), ERROR_SUCCESS);
    }
    ~Registered_Simulator() override {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegCloseKey(Machine_);
        RegDeleteTreeW(HKEY_CURRENT_USER, Stand_In_Key);
    }

    // Writes the value as a 32-bit program does.
    static std::string With(std::wstring_view Text, DWORD Type = REG_SZ) {
        HKEY Key = nullptr;
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, Simulator_Key, 0, nullptr, 0,
                        KEY_SET_VALUE | KEY_WOW64_32KEY, nullptr, &Key, nullptr);
        EXPECT_EQ(
            RegSetValueExW(Key, L"exe path", 0, Type, reinterpret_cast<const BYTE*>(Text.data()),
                           static_cast<DWORD>(Text.size() * sizeof(wchar_t))),
            ERROR_SUCCESS);
        RegCloseKey(Key);
        return Simulator_Dir();
    }

private:
    HKEY Machine_ = nullptr;
    const Environment_Scope No_Variable_{"TERRAFOLD_FSDIR"};
};

}  // namespace

TEST_F(Registered_Simulator, TheTextOfTheValue) {
    EXPECT_EQ(Simulator_Dir(), "") << "no key";
    EXPECT_EQ(With(std::wstring_view(L"C:\\Jeux d'\xE9t\xE9 \x20AC\\\0", 18)),
              "C:\\Jeux d'\xE9t\xE9 \x80\\");
    EXPECT_EQ(With(L"D:\\FS9"), "D:\\FS9") << "a value without its final zero";
    EXPECT_EQ(With(std::wstring_view(L"D:\\FS9\0\0x", 9)), "D:\\FS9") << "and with too many";
    EXPECT_EQ(With(L""), "");
    EXPECT_EQ(With(L"C:\\\x3A9"), "") << "a Greek letter";
    EXPECT_EQ(With(std::wstring(3000, L'x')), std::string(3000, 'x'));
    EXPECT_EQ(With(L"xx", REG_DWORD), "") << "no text";
    EXPECT_EQ(With(L"C:\\FS9"), "C:\\FS9");
    const Environment_Scope Named("TERRAFOLD_FSDIR", "D:/Jeux d'\xC3\xA9t\xC3\xA9/");
    EXPECT_EQ(Simulator_Dir(), "D:\\Jeux d'\xE9t\xE9\\") << "the variable comes first";
}
